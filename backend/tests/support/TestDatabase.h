// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <ostream>

enum class DatabaseKind { Sqlite, PostgreSql };

inline void PrintTo(DatabaseKind kind, std::ostream *stream)
{
    *stream << (kind == DatabaseKind::Sqlite ? "SQLite" : "PostgreSQL");
}

/// An empty database: a file in a folder of its own, or one on the test program's own PostgreSQL server, which is
/// started when it is first needed, listens on a socket in a temporary folder only, and ends with the program.
class TestDatabase {
public:
    explicit TestDatabase(DatabaseKind kind);

    /// As the server's option "database" takes it.
    QString location() const { return m_location; }
    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    QString m_location;
};

#define INSTANTIATE_ON_BOTH_DATABASES(suite)                                                                           \
    INSTANTIATE_TEST_SUITE_P(Both, suite, testing::Values(DatabaseKind::Sqlite, DatabaseKind::PostgreSql),             \
                             testing::PrintToStringParamName())
