// SPDX-License-Identifier: MIT
#include "support/TestDatabase.h"

#include "support/ChildProcess.h"
#include "support/Secrets.h"

using namespace Qt::StringLiterals;

namespace {

/// PostgreSQL refuses to run as root. It ends with this program, and at once: nothing of it is kept.
constexpr auto script = R"sh(
    as="setpriv --pdeathsig QUIT"
    [ "$(id -u)" != 0 ] || { as="$as --reuid nobody --regid nogroup --clear-groups"; chown nobody "$1"; }
    cd / && $as "$0/initdb" -D "$1/data" -U quillo -A trust -E UTF8 --no-sync >&2 &&
    exec $as "$0/postgres" -D "$1/data" -k "$1" -c listen_addresses= -c fsync=off -c max_connections=200 2>&1)sh";

class PostgreSqlServer {
public:
    PostgreSqlServer()
        : m_server(u"sh"_s, {u"-c"_s, QLatin1String(script), QStringLiteral(POSTGRESQL_PROGRAMS), m_folder.path()})
    {
        while (!m_server.readLine().contains(u"ready to accept connections"_s)) {
        }
        m_server.process().closeReadChannel(QProcess::StandardOutput);
    }

    QString addDatabase() const
    {
        const auto name = u"test"_s + QString::fromLatin1(randomToken(8).toHex());
        run(QStringLiteral(POSTGRESQL_PROGRAMS "/createdb"), {u"-h"_s, m_folder.path(), u"-U"_s, u"quillo"_s, name});
        return u"postgresql://quillo@/%1?host=%2"_s.arg(name, m_folder.path());
    }

private:
    // Not in $TMPDIR, where its user may not get to, and short as the path of a socket must be.
    QTemporaryDir m_folder{u"/tmp/quillo-postgresql-XXXXXX"_s};
    ChildProcess m_server;
};

} // namespace

TestDatabase::TestDatabase(DatabaseKind kind)
{
    if (kind == DatabaseKind::Sqlite) {
        m_location = m_folder.filePath(u"backend.db"_s);
        return;
    }
    static const PostgreSqlServer server;
    m_location = server.addDatabase();
}
