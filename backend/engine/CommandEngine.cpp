// SPDX-License-Identifier: MIT
#include "engine/CommandEngine.h"

#include "audio/AudioDecoder.h"
#include "audio/WaveFile.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QScopeGuard>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestOutput = qsizetype{1024} * 1024;
constexpr int pace = 100; // ms between two looks at whether anybody still waits

/// A file in memory, which has a path for as long as it is open.
class MemoryFile {
public:
    explicit MemoryFile(const std::string &content) : m_descriptor(::memfd_create("recording.wav", MFD_CLOEXEC))
    {
        size_t written = 0;
        while (m_descriptor >= 0 && written < content.size()) {
            const auto count = ::write(m_descriptor, content.data() + written, content.size() - written);
            if (count <= 0) {
                throw EngineError("there is no memory for the recording");
            }
            written += static_cast<size_t>(count);
        }
    }
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    int descriptor() const { return m_descriptor; }
    /// This path is good in this process and, because it inherits the file, in the program.
    QString path() const { return u"/proc/self/fd/%1"_s.arg(m_descriptor); }

private:
    int m_descriptor;
};

/// Runs between fork and exec. A program that can't be limited is not started.
void setLimit(__rlimit_resource resource, qint64 most)
{
    const rlimit limit{static_cast<rlim_t>(most), static_cast<rlim_t>(most)};
    if (::setrlimit(resource, &limit) != 0) {
        ::_exit(EXIT_FAILURE);
    }
}

QString wordsIn(const QByteArray &output)
{
    const auto isJson = output.trimmed().startsWith('{');
    const auto text = QJsonDocument::fromJson(output).object()[u"text"_s];
    if (isJson && !text.isString()) {
        throw EngineError("the transcription command's output has no text");
    }
    return isJson ? text.toString() : QString::fromUtf8(output);
}

} // namespace

CommandEngine::CommandEngine(CommandOptions options) : m_options(std::move(options)) {}

QString CommandEngine::transcribe(const Recording &recording)
{
    const MemoryFile file(waveFile(decodeAudio(recording.file, {recording.longest})));
    const auto command = commandFor(recording, file.path());
    QProcess process;
    limit(process, file.descriptor());
    process.setStandardErrorFile(QProcess::nullDevice()); // which may tell what was said
    if (command == m_options.command) {
        process.setStandardInputFile(file.path());
    }
    process.start(command.first(), command.sliced(1));
    if (!process.waitForStarted()) {
        throw EngineError("the transcription command can't be started");
    }
    const auto group = static_cast<pid_t>(process.processId());
    const auto ended = qScopeGuard([&] { // and so has whatever it has left behind
        ::kill(-group, SIGKILL);
        process.waitForFinished();
    });
    const QDeadlineTimer deadline(m_options.timeout);
    QByteArray output;
    while (!process.waitForFinished(pace)) {
        output += process.readAllStandardOutput();
        if (deadline.hasExpired() || !recording.wanted()) {
            throw EngineError("the transcription command took too long, or nobody waited for it any more");
        }
        if (output.size() > longestOutput) {
            throw EngineError("the transcription command printed too much");
        }
    }
    output += process.readAllStandardOutput();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw EngineError("the transcription command failed with status " + std::to_string(process.exitCode()));
    }
    return wordsIn(output);
}

/// Each placeholder is replaced once, so that a prompt can't name another.
QStringList CommandEngine::commandFor(const Recording &recording, const QString &file) const
{
    const auto language = recording.language.empty() ? m_options.language : recording.language;
    auto command = m_options.command;
    for (auto &argument : command) {
        if (argument.contains(u"{prompt}"_s)) {
            argument.replace(u"{prompt}"_s, QString::fromStdString(recording.prompt));
        } else {
            argument.replace(u"{file}"_s, file).replace(u"{language}"_s, QString::fromStdString(language));
        }
    }
    return command;
}

void CommandEngine::limit(QProcess &process, int file) const
{
    auto environment = QProcessEnvironment();
    for (const auto *const name : {"PATH", "HOME", "LANG", "LC_ALL"}) {
        if (qEnvironmentVariableIsSet(name)) {
            environment.insert(QLatin1String(name), qEnvironmentVariable(name));
        }
    }
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([file, memory = m_options.memory, time = m_options.processorTime] {
        ::setpgid(0, 0);
        ::fcntl(file, F_SETFD, 0);
        setLimit(RLIMIT_CORE, 0);
        if (memory > 0) {
            setLimit(RLIMIT_AS, memory);
        }
        if (time > 0) {
            setLimit(RLIMIT_CPU, time);
        }
    });
}
