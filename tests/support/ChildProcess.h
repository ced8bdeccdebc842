// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <chrono>

/// A program a test starts and ends. It dies with the test, also when the test crashes.
class ChildProcess {
public:
    /// Starts at once; throws std::runtime_error when the program can't be started.
    ChildProcess(const QString &program, const QStringList &arguments,
                 const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    /// Asks the program to end (SIGTERM), kills it after two seconds.
    ~ChildProcess();

    QProcess &process() { return m_process; }
    qint64 pid() const { return m_process.processId(); }

    /// The next line of standard output, without its line break. Throws std::runtime_error, with what stood on
    /// standard error, when none comes in time.
    QString readLine(std::chrono::milliseconds timeout = std::chrono::seconds(20));

    /// Waits for the end; throws std::runtime_error when it does not come in time. Returns the exit status.
    int wait(std::chrono::milliseconds timeout = std::chrono::seconds(20));

    /// Asks the program to end and waits for it.
    void terminate();

private:
    QProcess m_process;
};

/// Runs a program to its end and returns its standard output; throws std::runtime_error when it fails.
QByteArray run(const QString &program, const QStringList &arguments,
               const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
               const QByteArray &input = {});
