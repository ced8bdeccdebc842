// SPDX-License-Identifier: MIT
#include "store/Database.h"

#include "support/Secrets.h"

#include <QFile>
#include <QSqlError>

namespace {

/// Each entry brings the tables from its index to the next version. Entries that were released never change.
const QList<QStringList> &migrations()
{
    static const QList<QStringList> all{{
        QStringLiteral("CREATE TABLE devices (id TEXT PRIMARY KEY, secret_hash BLOB NOT NULL, platform TEXT NOT NULL,"
                       " created_at BIGINT NOT NULL, balance BIGINT NOT NULL DEFAULT 0 CHECK (balance >= 0),"
                       " unmetered INTEGER NOT NULL DEFAULT 0)"),
        QStringLiteral("CREATE TABLE ledger (id INTEGER PRIMARY KEY, device_id TEXT NOT NULL REFERENCES devices (id),"
                       " amount BIGINT NOT NULL, reason TEXT NOT NULL, created_at BIGINT NOT NULL)"),
        QStringLiteral("CREATE INDEX ledger_by_device ON ledger (device_id)"),
        QStringLiteral("CREATE INDEX ledger_by_reason ON ledger (reason, created_at)"),
        QStringLiteral("CREATE TABLE checkout_links (token_hash BLOB PRIMARY KEY,"
                       " device_id TEXT NOT NULL REFERENCES devices (id), expires_at BIGINT NOT NULL, used_at BIGINT)"),
    }};
    return all;
}

[[noreturn]] void fail(const char *what, const QSqlError &error)
{
    throw StoreError(std::string(what) + ": " + error.text().toStdString());
}

/// SQLite gives its journal files the permissions of the database, so it is enough to create that one privately.
void createPrivately(const QString &path)
{
    QFile file(path);
    if (file.exists()) {
        return;
    }
    if (!file.open(QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) {
        throw StoreError("the database " + path.toStdString() +
                         " can't be created: " + file.errorString().toStdString());
    }
}

} // namespace

Database::Database(const QString &path)
    : m_name(QString::fromLatin1(randomToken(9))),
      m_connection(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
{
    createPrivately(path);
    m_connection.setDatabaseName(path);
    m_connection.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
    if (!m_connection.open()) {
        fail("the database can't be opened", m_connection.lastError());
    }
    execute(QStringLiteral("PRAGMA journal_mode = WAL"));
    execute(QStringLiteral("PRAGMA foreign_keys = ON"));
    migrate();
}

Database::~Database()
{
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

QSqlQuery Database::execute(const QString &sql, const QVariantList &values)
{
    QSqlQuery query(m_connection);
    if (!query.prepare(sql)) {
        fail("the database refused a statement", query.lastError());
    }
    for (const auto &value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        fail("the database failed", query.lastError());
    }
    return query;
}

void Database::migrate()
{
    Transaction transaction(*this);
    execute(QStringLiteral("CREATE TABLE IF NOT EXISTS schema_version (version INTEGER NOT NULL)"));
    qsizetype version = 0;
    if (auto row = execute(QStringLiteral("SELECT version FROM schema_version")); row.next()) {
        version = row.value(0).toInt();
    } else {
        execute(QStringLiteral("INSERT INTO schema_version VALUES (0)"));
    }
    if (version > migrations().size()) {
        throw StoreError("the database was made by a newer version of this program");
    }
    for (const auto &step : migrations().sliced(version)) {
        for (const auto &statement : step) {
            execute(statement);
        }
    }
    execute(QStringLiteral("UPDATE schema_version SET version = ?"), {migrations().size()});
    transaction.commit();
}

Transaction::Transaction(Database &database) : m_database(database)
{
    if (!m_database.m_connection.transaction()) {
        fail("a transaction can't begin", m_database.m_connection.lastError());
    }
}

Transaction::~Transaction()
{
    if (m_open) {
        m_database.m_connection.rollback();
    }
}

void Transaction::commit()
{
    if (!m_database.m_connection.commit()) {
        fail("a transaction can't be committed", m_database.m_connection.lastError());
    }
    m_open = false;
}
