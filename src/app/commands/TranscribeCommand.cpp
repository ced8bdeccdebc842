// SPDX-License-Identifier: MIT
#include "app/commands/TranscribeCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/start/Services.h"
#include "app/start/TerminationSignals.h"
#include "audio/AudioRecorder.h"
#include "platform/audio/SoundFiles.h"

#include <QCoreApplication>
#include <QCoroFuture>
#include <QElapsedTimer>
#include <QFile>
#include <QPromise>
#include <QTemporaryFile>
#include <QThreadPool>
#include <QTimer>

#include <array>
#include <atomic>
#include <memory>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Transcribe)
};

/// How long a request to stop may go unseen while standard input has nothing to give.
constexpr std::chrono::milliseconds stopPatience(100);

/// Copies standard input to its end into `target`, or until `isStopped`. Any thread.
void spoolInput(QFile &target, const std::atomic<bool> &isStopped)
{
    std::array<char, 65536> piece{};
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (!isStopped) {
        // A bare read would hold back whoever wants to stop until the input ends.
        if (::poll(&input, 1, stopPatience.count()) <= 0) {
            continue;
        }
        const ssize_t size = ::read(STDIN_FILENO, piece.data(), piece.size());
        if (size < 0) {
            throw LocalizedError(Words::tr("Standard input can't be read."));
        }
        if (size == 0) {
            break;
        }
        if (target.write(piece.data(), size) != size) {
            throw LocalizedError(Words::tr("The temporary folder is full."));
        }
    }
    if (!target.flush()) {
        throw LocalizedError(Words::tr("The temporary folder is full."));
    }
}

/// One file's way to its text. Whatever it wrote is gone with it, in every outcome.
class Transcription {
public:
    explicit Transcription(Services &services) : m_services(services) {}
    Transcription(const Transcription &) = delete;
    Transcription &operator=(const Transcription &) = delete;

    /// After the event loop, which `run` may still have been waiting for: that is why it is not what cleans up.
    ~Transcription()
    {
        stop();
        QThreadPool::globalInstance()->waitForDone();
        AudioRecorder::discard(m_recording);
    }

    QCoro::Task<int> run(QString path)
    {
        try {
            if (!m_services.consent.isCurrent()) {
                throw AIConsentError();
            }
            const bool isSpooled = path == u"-";
            if (isSpooled) {
                // A container's index may stand at its end, so the input must be a file.
                if (!m_spool.open()) {
                    throw LocalizedError(Words::tr("The temporary folder can't be written."));
                }
                path = m_spool.fileName();
            }
            co_await convert(path, isSpooled);
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
    QCoro::Task<void> convert(QString source, bool isSpooled)
    {
        // Shared: whoever waits may go on before the thread has left finish().
        const auto promise = std::make_shared<QPromise<std::optional<LocalizedError>>>();
        promise->start();
        const QFuture<std::optional<LocalizedError>> done = promise->future();
        Output::progress(Words::tr("Reading…"));
        QThreadPool::globalInstance()->start([this, source, isSpooled, promise] {
            std::optional<LocalizedError> failure;
            try {
                if (isSpooled) {
                    spoolInput(m_spool, m_isStopped);
                }
                SoundFiles::convert(source, m_recording, AudioRecorder::settings(),
                                    [this, shown = -1](double part) mutable {
                                        const int percent = static_cast<int>(part * 100);
                                        if (part >= 0 && percent != shown) {
                                            shown = percent;
                                            Output::progress(Words::tr("Reading… %1 %").arg(percent));
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
                         [this] { Output::progress(Words::tr("Transcribing… %1 s").arg(m_elapsed.elapsed() / 1000)); });
        m_ticks.start(std::chrono::seconds(1));
        Output::progress(Words::tr("Transcribing…"));
    }

    Services &m_services;
    QString m_recording = AudioRecorder::newPath(m_services.files);
    QTemporaryFile m_spool{m_services.files.temporaryFolder() + u"/quillo-input-XXXXXX"_s};
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

int TranscribeCommand::run(const QString &path)
{
    Services services;
    Transcription transcription(services);
    const TerminationSignals signals([&transcription] {
        transcription.stop();
        QCoreApplication::exit(ExitStatus::failed);
    });
    QTimer::singleShot(0, qApp, [&] { finishWith(transcription.run(path)); });
    return QCoreApplication::exec();
}
