// SPDX-License-Identifier: MIT
#include "audio/AudioRecorder.h"

#include "platform/Files.h"
#include "service/ApiError.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <utility>

using namespace Qt::StringLiterals;

AudioRecorder::AudioRecorder(Microphone &microphone, const Files &files) : m_microphone(microphone), m_files(files) {}

AudioSettings AudioRecorder::settings()
{
    return {.formatId = "aac ", .sampleRate = 44100, .channels = 1, .bitRate = 64000};
}

QString AudioRecorder::newPath(const Files &files)
{
    const QString name = u"dictation-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() + u".m4a"_s;
    return files.temporaryFolder() + u'/' + name;
}

void AudioRecorder::start(std::function<void()> onEnded)
{
    const QString path = newPath(m_files);
    auto recorder = m_microphone.makeRecorder(path, settings());
    recorder->setMeteringEnabled(true);
    recorder->setEndedHandler(std::move(onEnded));
    if (!recorder->record()) {
        recorder.reset();
        discard(path);
        throw ApiError(u"no_audio"_s, ApiError::tr("Couldn't start the microphone."), 0);
    }
    m_recorder = std::move(recorder);
}

std::optional<Recording> AudioRecorder::stop()
{
    if (!m_recorder) {
        return std::nullopt;
    }
    const double seconds = m_recorder->currentTime();
    m_recorder->stop();
    const QString path = std::exchange(m_recorder, nullptr)->path();
    if (QFileInfo(path).size() < 1) { // missing counts as empty
        discard(path);
        return std::nullopt;
    }
    return Recording{path, seconds};
}

void AudioRecorder::cancel()
{
    if (m_recorder) {
        m_recorder->stop();
        discard(std::exchange(m_recorder, nullptr)->path());
    }
}

void AudioRecorder::discard(const QString &path)
{
    QFile::remove(path);
}

AudioRecorder::Permission AudioRecorder::permission() const
{
    switch (m_microphone.authorizationStatus()) {
    case Microphone::Authorization::Authorized:
        return Permission::Granted;
    case Microphone::Authorization::NotDetermined:
        return Permission::Undetermined;
    case Microphone::Authorization::Restricted:
    case Microphone::Authorization::Denied:
        break;
    }
    return Permission::Denied;
}

QCoro::Task<bool> AudioRecorder::requestPermission()
{
    co_return co_await m_microphone.requestAccess();
}
