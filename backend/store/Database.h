// SPDX-License-Identifier: MIT
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantList>

#include <optional>
#include <stdexcept>
#include <unordered_map>

/// The database refused. The text is for the operator.
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The database can't be reached, or can't work for now: a lost connection, a full disk.
class StoreUnavailable : public StoreError {
public:
    using StoreError::StoreError;
};

using Row = QVariantList;

/// One connection to an SQLite file or to a PostgreSQL server; the SQL is the same for both. All of its use,
/// destruction included, belongs to the thread that made it. A lost connection fails what is running, and is made anew
/// for what comes next.
class Database {
public:
    /// `location` begins with "postgresql://" (libpq's URI form; one host, options in the query, which may set other
    /// limits than the 5 s to connect and the 10 s for a statement), or is the path of a file that is created when it
    /// is missing, readable by its owner only. Brings the tables up to date, also when several processes do so at once.
    /// Throws StoreError.
    explicit Database(QString location);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    static bool isPostgreSql(const QString &location);

    /// Each "?" of `sql` stands for one of the values. All throw StoreError.
    QList<Row> select(const QString &sql, const Row &values = {});
    std::optional<Row> first(const QString &sql, const Row &values = {});
    /// How many rows were changed.
    qint64 change(const QString &sql, const Row &values = {});

    /// Writes a copy as it is at one moment to a new file, readable by its owner only, while others go on working.
    /// SQLite only; PostgreSQL has pg_dump.
    void backUp(const QString &file);

    /// What SQLite finds wrong with its file; nothing is found with a sound one. PostgreSQL looks after its files
    /// itself.
    QStringList damages();

    qint64 version() { return first(QStringLiteral("SELECT version FROM schema_version"))->at(0).toLongLong(); }

private:
    friend class Transaction;

    void open();
    void writeAhead();
    void reconnect();
    Database &readyFor(bool isVolatile);
    void migrate();
    /// For what the databases can't prepare: transactions, tables, settings.
    void command(const QString &sql);
    QSqlQuery &run(const QString &sql, const Row &values);
    QSqlQuery &prepared(const QString &sql);
    QString inDialect(QString sql) const;

    QString m_location;
    bool m_postgreSql;
    bool m_limitsStatements = false; ///< unless the location does
    QString m_name;
    QSqlDatabase m_connection;
    std::unordered_map<QString, QSqlQuery> m_prepared;
    bool m_inTransaction = false;
    bool m_volatile = false; ///< SQLite does not wait for the disk
};

/// Everything executed during its life happens on commit(), or not at all.
class Transaction {
public:
    /// What commit() waits for. After a crash of this process, both kinds are there; after one of the machine, the last
    /// volatile ones may be missing, unless a durable one came after them.
    enum class Kind { Durable, Volatile };

    explicit Transaction(Database &database, Kind kind = Kind::Durable);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    struct Begin {};
    Transaction(Database &database, Begin);

    Database &m_database;
};
