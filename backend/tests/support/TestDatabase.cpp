// SPDX-License-Identifier: MIT
#include "support/TestDatabase.h"

#include "store/Database.h"
#include "support/Secrets.h"

#include <QProcess>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <memory>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class PostgreSqlServer {
public:
    PostgreSqlServer()
    {
        giveAway(m_folder.path());
        const auto data = m_folder.filePath(u"data"_s);
        QProcess initdb;
        restrict(initdb);
        initdb.start(program(u"initdb"_s),
                     {u"-D"_s, data, u"-U"_s, u"quillo"_s, u"-A"_s, u"trust"_s, u"-E"_s, u"UTF8"_s, u"--no-sync"_s});
        if (!initdb.waitForFinished(60'000) || initdb.exitCode() != 0) {
            throw std::runtime_error("initdb: " + initdb.readAllStandardError().toStdString());
        }
        restrict(m_server);
        m_server.start(program(u"postgres"_s),
                       {u"-D"_s, data, u"-k"_s, m_folder.path(), u"-c"_s, u"listen_addresses="_s, u"-c"_s,
                        u"fsync=off"_s, u"-c"_s, u"max_connections=200"_s});
        m_server.setReadChannel(QProcess::StandardError);
        QByteArray log;
        while (!log.contains("ready to accept connections")) {
            if (!m_server.waitForReadyRead(30'000)) {
                throw std::runtime_error("postgres: " + log.toStdString());
            }
            log += m_server.readAllStandardError();
        }
        m_server.closeReadChannel(QProcess::StandardError);
    }

    ~PostgreSqlServer()
    {
        ::kill(static_cast<pid_t>(m_server.processId()), SIGQUIT); // at once: nothing of it is kept
        m_server.waitForFinished();
    }
    PostgreSqlServer(const PostgreSqlServer &) = delete;
    PostgreSqlServer &operator=(const PostgreSqlServer &) = delete;

    QString location(const QString &database) const
    {
        return u"postgresql://quillo@/%1?host=%2"_s.arg(database, m_folder.path());
    }

    QString addDatabase() const
    {
        auto connection = QSqlDatabase::addDatabase(u"QPSQL"_s, u"maintenance"_s);
        connection.setDatabaseName(u"postgres"_s);
        connection.setUserName(u"quillo"_s);
        connection.setConnectOptions(u"host="_s + m_folder.path());
        connection.open();
        const auto name = u"test"_s + QString::fromLatin1(randomToken(8).toHex());
        QSqlQuery(connection).exec(u"CREATE DATABASE "_s + name);
        connection = {};
        QSqlDatabase::removeDatabase(u"maintenance"_s);
        return location(name);
    }

private:
    static QString program(const QString &name) { return QStringLiteral(POSTGRESQL_PROGRAMS "/") + name; }

    static const passwd &unprivileged() { return *::getpwnam("nobody"); }

    /// PostgreSQL refuses to run as root.
    static void giveAway(const QString &folder)
    {
        if (::geteuid() == 0 && ::chown(folder.toLocal8Bit().constData(), unprivileged().pw_uid, 0) != 0) {
            throw std::runtime_error("the folder can't be given away");
        }
    }

    static void restrict(QProcess &process)
    {
        process.setWorkingDirectory(u"/"_s);
        const auto user = unprivileged();
        process.setChildProcessModifier([user] {
            if (::geteuid() == 0 &&
                (::setgroups(0, nullptr) != 0 || ::setgid(user.pw_gid) != 0 || ::setuid(user.pw_uid) != 0)) {
                ::_exit(1);
            }
            ::prctl(PR_SET_PDEATHSIG, SIGQUIT);
        });
    }

    QTemporaryDir m_folder;
    QProcess m_server;
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
