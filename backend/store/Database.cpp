// SPDX-License-Identifier: MIT
#include "store/Database.h"

#include "store/Migrations.h"
#include "support/Secrets.h"

#include <QFile>
#include <QSet>
#include <QSqlError>
#include <QSqlRecord>
#include <QUrl>
#include <QUrlQuery>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Whether the database may do the same later. SQLite's codes: busy, locked, out of memory, input or output, full,
/// can't open. PostgreSQL's classes: connection, resources, the operator's intervention.
bool isPassing(const QSqlError &error, const QSqlDatabase &connection)
{
    static const QSet<int> codes{5, 6, 7, 10, 13, 14};
    static const QSet<QString> classes{u"08"_s, u"53"_s, u"57"_s};
    const auto code = error.nativeErrorCode();
    return error.type() == QSqlError::ConnectionError || !connection.isOpen() ||
           (code.size() < 5 && codes.contains(code.toInt() & 0xff)) ||
           (code.size() == 5 && classes.contains(code.first(2)));
}

[[noreturn]] void fail(const char *what, const QSqlError &error, const QSqlDatabase &connection)
{
    // PostgreSQL's further lines may show a row.
    const auto text = std::string(what) + ": " + error.text().trimmed().section(u'\n', 0, 0).toStdString();
    if (isPassing(error, connection)) {
        throw StoreUnavailable(text);
    }
    throw StoreError(text);
}

/// SQLite gives its journal files the permissions of the database, so it is enough to create that one privately.
void createPrivately(const QString &path)
{
    QFile file(path);
    if (file.exists()) {
        return;
    }
    if (!file.open(QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner) && !file.exists()) {
        throw StoreError("the database " + path.toStdString() +
                         " can't be created: " + file.errorString().toStdString());
    }
}

/// Whether `location` leaves the time of a statement to this program.
bool addressPostgreSql(QSqlDatabase &connection, const QString &location)
{
    const QUrl url(location, QUrl::StrictMode);
    if (!url.isValid()) {
        throw StoreError("the database's address is not a valid postgresql:// URI"); // which may hold a password
    }
    connection.setHostName(url.host(QUrl::FullyDecoded));
    connection.setPort(url.port());
    connection.setUserName(url.userName(QUrl::FullyDecoded));
    connection.setPassword(url.password(QUrl::FullyDecoded));
    connection.setDatabaseName(url.path(QUrl::FullyDecoded).mid(1));
    QStringList options;
    bool limitsStatements = false;
    auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    // For a server that is gone without a word, libpq would wait for minutes or for ever. In seconds and milliseconds.
    for (const auto &limit : {std::pair(u"connect_timeout"_s, u"5"_s), std::pair(u"tcp_user_timeout"_s, u"10000"_s)}) {
        if (!QUrlQuery(url).hasQueryItem(limit.first)) {
            items.append(limit);
        }
    }
    for (auto [key, value] : items) {
        limitsStatements = limitsStatements || (key == u"options"_s && value.contains(u"statement_timeout"_s));
        value.replace(u"\\"_s, u"\\\\"_s).replace(u"'"_s, u"\\'"_s);
        options.append(key + u"='"_s + value + u'\'');
    }
    connection.setConnectOptions(options.join(u';'));
    return !limitsStatements;
}

} // namespace

bool Database::isPostgreSql(const QString &location)
{
    return location.startsWith(u"postgresql://"_s) || location.startsWith(u"postgres://"_s);
}

Database::Database(QString location)
    : m_location(std::move(location)),
      m_postgreSql(isPostgreSql(m_location)),
      m_name(QString::fromLatin1(randomToken(9))),
      m_connection(QSqlDatabase::addDatabase(m_postgreSql ? u"QPSQL"_s : u"QSQLITE"_s, m_name))
{
    if (m_postgreSql) {
        m_limitsStatements = addressPostgreSql(m_connection, m_location);
    } else {
        createPrivately(m_location);
        m_connection.setDatabaseName(m_location);
        m_connection.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
    }
    open();
    migrate();
}

Database::~Database()
{
    m_prepared.clear();
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

void Database::open()
{
    m_prepared.clear();
    m_volatile = false;
    if (!m_connection.open()) {
        fail("the database can't be opened", m_connection.lastError(), m_connection);
    }
    if (m_postgreSql) {
        command(u"SET client_min_messages = warning"_s);
        if (m_limitsStatements) {
            command(u"SET statement_timeout = '10s'"_s);
        }
    } else {
        writeAhead();
        command(u"PRAGMA synchronous = FULL"_s);
        command(u"PRAGMA foreign_keys = ON"_s);
    }
}

/// A file's first connections may come at once, and SQLite refuses all but one the change, without waiting.
void Database::writeAhead()
{
    constexpr int attempts = 20;
    const QString change = u"PRAGMA journal_mode = WAL"_s;
    for (int attempt = 1; attempt < attempts; ++attempt) {
        if (QSqlQuery(m_connection).exec(change)) {
            return;
        }
        command(u"BEGIN IMMEDIATE"_s); // waits for whoever makes it
        command(u"COMMIT"_s);
    }
    command(change);
}

void Database::reconnect()
{
    if (!m_connection.isOpen()) {
        open();
    }
}

/// Connects, and sets SQLite to wait for the disk or not, which is possible between transactions only.
Database &Database::readyFor(bool isVolatile)
{
    reconnect();
    if (!m_postgreSql && isVolatile != m_volatile) {
        command(isVolatile ? u"PRAGMA synchronous = NORMAL"_s : u"PRAGMA synchronous = FULL"_s);
        m_volatile = isVolatile;
    }
    return *this;
}

QString Database::inDialect(QString sql) const
{
    return sql.replace(u"{blob}"_s, m_postgreSql ? u"BYTEA"_s : u"BLOB"_s)
        .replace(u"{unlogged}"_s, m_postgreSql ? u"UNLOGGED"_s : u""_s)
        .replace(u"{serial}"_s,
                 m_postgreSql ? u"BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY"_s : u"INTEGER PRIMARY KEY"_s);
}

void Database::migrate()
{
    Transaction transaction(*this);
    if (m_postgreSql) {
        command(u"SET LOCAL statement_timeout = 0"_s);      // other processes and large tables may take their time
        select(u"SELECT pg_advisory_xact_lock(7117551)"_s); // any number that is always the same
    }
    command(u"CREATE TABLE IF NOT EXISTS schema_version (version INTEGER NOT NULL)"_s);
    auto row = first(u"SELECT version FROM schema_version"_s);
    if (!row) {
        change(u"INSERT INTO schema_version VALUES (0)"_s);
    }
    const auto version = row ? row->at(0).toLongLong() : 0;
    if (version > migrations().size()) {
        throw StoreError("the database was made by a newer version of this program");
    }
    for (const auto &step : migrations().sliced(version)) {
        for (const auto &statement : step) {
            command(inDialect(statement));
        }
    }
    change(u"UPDATE schema_version SET version = ?"_s, {migrations().size()});
    transaction.commit();
}

void Database::backUp(const QString &file)
{
    if (m_postgreSql) {
        throw StoreError("PostgreSQL is backed up by pg_dump");
    }
    if (QFile::exists(file)) {
        throw StoreError(file.toStdString() + " exists");
    }
    createPrivately(file);
    change(u"VACUUM INTO ?"_s, {file});
}

QStringList Database::damages()
{
    QStringList found;
    if (!m_postgreSql) {
        for (const auto &row : select(u"PRAGMA integrity_check"_s) + select(u"PRAGMA foreign_key_check"_s)) {
            found.append(row[0].toString());
        }
        found.removeOne(u"ok"_s);
    }
    return found;
}

void Database::command(const QString &sql)
{
    QSqlQuery query(m_connection);
    if (!query.exec(sql)) {
        fail("the database failed", query.lastError(), m_connection);
    }
}

QSqlQuery &Database::prepared(const QString &sql)
{
    if (const auto known = m_prepared.find(sql); known != m_prepared.end()) {
        return known->second;
    }
    QSqlQuery query(m_connection);
    if (!query.prepare(sql)) {
        fail("the database refused a statement", query.lastError(), m_connection);
    }
    return m_prepared.emplace(sql, std::move(query)).first->second;
}

QSqlQuery &Database::run(const QString &sql, const Row &values)
{
    if (!m_inTransaction) {
        reconnect();
    }
    auto &query = prepared(sql);
    for (qsizetype i = 0; i < values.size(); ++i) {
        query.bindValue(static_cast<int>(i), values[i]);
    }
    if (!query.exec()) {
        fail("the database failed", query.lastError(), m_connection);
    }
    return query;
}

QList<Row> Database::select(const QString &sql, const Row &values)
{
    auto &query = run(sql, values);
    const auto columns = query.record().count();
    QList<Row> rows;
    while (query.next()) {
        Row row;
        for (int column = 0; column < columns; ++column) {
            row.append(query.value(column));
        }
        rows.append(row);
    }
    query.finish();
    return rows;
}

std::optional<Row> Database::first(const QString &sql, const Row &values)
{
    auto rows = select(sql, values);
    return rows.isEmpty() ? std::nullopt : std::optional(std::move(rows.first()));
}

qint64 Database::change(const QString &sql, const Row &values)
{
    auto &query = run(sql, values);
    const auto rows = query.numRowsAffected();
    query.finish();
    return rows;
}

/// From here on the destructor ends what has begun, also when the rest of the other constructor fails.
Transaction::Transaction(Database &database, Begin) : m_database(database)
{
    // What will write takes SQLite's write lock at its beginning: later, it could find that another process was faster.
    database.command(database.m_postgreSql ? u"BEGIN ISOLATION LEVEL READ COMMITTED"_s : u"BEGIN IMMEDIATE"_s);
    database.m_inTransaction = true;
}

Transaction::Transaction(Database &database, Kind kind)
    : Transaction(database.readyFor(kind == Kind::Volatile), Begin{})
{
    if (kind == Kind::Volatile && database.m_postgreSql) {
        database.command(u"SET LOCAL synchronous_commit = off"_s);
    }
}

Transaction::~Transaction()
{
    if (m_database.m_inTransaction) {
        m_database.m_inTransaction = false;
        QSqlQuery(m_database.m_connection).exec(u"ROLLBACK"_s);
    }
}

void Transaction::commit()
{
    m_database.command(u"COMMIT"_s);
    m_database.m_inTransaction = false;
}
