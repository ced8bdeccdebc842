// SPDX-License-Identifier: MIT
#include "support/ChildProcess.h"

#include <QDeadlineTimer>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace {

[[noreturn]] void fail(QProcess &process, const char *what)
{
    const QString text = process.program() + QStringLiteral(": ") + QString::fromLatin1(what) + QLatin1Char('\n') +
                         QString::fromUtf8(process.readAllStandardError());
    throw std::runtime_error(text.toStdString());
}

void start(QProcess &process, const QString &program, const QStringList &arguments,
           const QProcessEnvironment &environment)
{
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        fail(process, "does not start");
    }
}

} // namespace

ChildProcess::ChildProcess(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment)
{
    start(m_process, program, arguments, environment);
}

ChildProcess::~ChildProcess()
{
    terminate();
}

QString ChildProcess::readLine(std::chrono::milliseconds timeout)
{
    const QDeadlineTimer deadline(timeout);
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(int(deadline.remainingTime())) && !m_process.canReadLine()) {
            fail(m_process, "printed no line in time");
        }
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

int ChildProcess::wait(std::chrono::milliseconds timeout)
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(int(timeout.count()))) {
        fail(m_process, "did not end in time");
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void ChildProcess::terminate()
{
    if (m_process.state() == QProcess::NotRunning) {
        return;
    }
    m_process.terminate();
    if (!m_process.waitForFinished(2000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

QByteArray run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
               const QByteArray &input)
{
    QProcess process;
    start(process, program, arguments, environment);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        fail(process, "failed");
    }
    return process.readAllStandardOutput();
}
