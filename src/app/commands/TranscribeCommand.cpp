// SPDX-License-Identifier: MIT
#include "app/commands/TranscribeCommand.h"

#include "app/Services.h"
#include "app/TerminationSignals.h"
#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "audio/AudioRecorder.h"
#include "platform/audio/LibavSoundFiles.h"

#include <QCoreApplication>
#include <QCoroFuture>
#include <QElapsedTimer>
#include <QFile>
#include <QPromise>
#include <QScopeGuard>
#include <QTemporaryFile>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 copySize = 65536;

/// Standard input in a file of the user's own, for a container's index may stand at its end.
std::unique_ptr<QTemporaryFile> spooledInput(const Files &files)
{
    auto spool = std::make_unique<QTemporaryFile>(files.temporaryFolder() + u"/quillo-input-XXXXXX"_s);
    QFile input;
    if (!spool->open() || !input.open(stdin, QIODevice::ReadOnly)) {
        throw LocalizedError(u"Standard input can't be read."_s);
    }
    for (QByteArray piece = input.read(copySize); !piece.isEmpty(); piece = input.read(copySize)) {
        if (spool->write(piece) != piece.size()) {
            throw LocalizedError(u"The temporary folder is full."_s);
        }
    }
    spool->close();
    return spool;
}

/// One file's way to its text.
class Transcription {
public:
    explicit Transcription(Services &services) : m_services(services) {}

    QCoro::Task<int> run(QString path)
    {
        const auto removing = qScopeGuard([this] { AudioRecorder::discard(m_recording); });
        try {
            if (!m_services.consent.isCurrent()) {
                throw AIConsentError();
            }
            std::unique_ptr<QTemporaryFile> spool;
            if (path == u"-") {
                spool = spooledInput(m_services.files);
                path = spool->fileName();
            }
            co_await convert(path);
            watchTheClock();
            const Transcript transcript = co_await m_services.client.transcribe(m_recording);
            Output::progress({});
            Output::print(transcript.text.trimmed() + u'\n');
            co_return ExitStatus::done;
        } catch (const LocalizedError &error) {
            co_return Output::fail(error.localizedDescription(), ExitStatus::failed);
        }
    }

    /// Ends the work early. From the main thread.
    void stop() { m_isStopped = true; }

private:
    QCoro::Task<void> convert(const QString &source)
    {
        // Shared: whoever waits may go on before the thread has left finish().
        const auto promise = std::make_shared<QPromise<std::optional<LocalizedError>>>();
        promise->start();
        const QFuture<std::optional<LocalizedError>> done = promise->future();
        Output::progress(u"Reading…"_s);
        QThreadPool::globalInstance()->start([this, source, promise] {
            std::optional<LocalizedError> failure;
            try {
                m_soundFiles.convert(source, m_recording, AudioRecorder::settings(),
                                     [this, shown = -1](double part) mutable {
                                         const int percent = static_cast<int>(part * 100);
                                         if (part >= 0 && percent != shown) {
                                             shown = percent;
                                             Output::progress(u"Reading… %1 %"_s.arg(percent));
                                         }
                                         return !m_isStopped;
                                     });
            } catch (const LocalizedError &error) {
                failure = error;
            }
            promise->addResult(failure);
            promise->finish();
        });
        const std::optional<LocalizedError> failure = co_await done;
        if (failure) {
            throw LocalizedError(*failure);
        }
    }

    void watchTheClock()
    {
        m_elapsed.start();
        QObject::connect(&m_ticks, &QTimer::timeout, &m_ticks,
                         [this] { Output::progress(u"Transcribing… %1 s"_s.arg(m_elapsed.elapsed() / 1000)); });
        m_ticks.start(std::chrono::seconds(1));
        Output::progress(u"Transcribing…"_s);
    }

    Services &m_services;
    LibavSoundFiles m_soundFiles;
    QString m_recording = AudioRecorder::newPath(m_services.files);
    std::atomic<bool> m_isStopped = false;
    QElapsedTimer m_elapsed;
    QTimer m_ticks;
};

QCoro::Task<void> finishWith(QCoro::Task<int> work)
{
    const int status = co_await work;
    QCoreApplication::exit(status);
}

} // namespace

int transcribeCommand(const QString &path)
{
    Services services;
    Transcription transcription(services);
    const TerminationSignals signals([&transcription] {
        transcription.stop();
        QCoreApplication::exit(ExitStatus::failed);
    });
    QTimer::singleShot(0, qApp, [&] { finishWith(transcription.run(path)); });
    const int status = QCoreApplication::exec();
    transcription.stop();
    QThreadPool::globalInstance()->waitForDone();
    return status;
}
