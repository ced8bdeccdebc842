// SPDX-License-Identifier: MIT
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantList>

#include <stdexcept>

/// The database refused. The text is for the operator.
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One connection to the SQLite file. All of its use, destruction included, belongs to the thread that made it.
class Database {
public:
    /// Opens or creates the file, readable by its owner only, and brings its tables up to date. Throws StoreError.
    explicit Database(const QString &path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Throws StoreError. Queries must be gone before the database is.
    QSqlQuery execute(const QString &sql, const QVariantList &values = {});

private:
    friend class Transaction;

    void migrate();

    QString m_name;
    QSqlDatabase m_connection;
};

/// Everything executed during its life happens on commit(), or not at all.
class Transaction {
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    Database &m_database;
    bool m_open = true;
};
