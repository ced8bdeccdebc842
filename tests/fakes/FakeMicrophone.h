// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LocalizedError.h"
#include "platform/Microphone.h"

#include <QFile>

#include <coroutine>
#include <utility>

/// A microphone that "hears" for as long as the test says and writes the bytes the test gives.
class FakeMicrophone : public Microphone {
public:
    class Recorder;

    Authorization authorizationStatus() const override { return authorization; }
    QCoro::Task<bool> requestAccess() override
    {
        co_await Question{*this};
        authorization = answer ? Authorization::Authorized : Authorization::Denied;
        co_return answer;
    }
    std::unique_ptr<AudioFileRecorder> makeRecorder(const QString &path, const AudioSettings &settings) override;

    /// The user answers the question.
    void answerNow()
    {
        isAsking = false;
        std::exchange(m_waiting, {}).resume();
    }

    Authorization authorization = Authorization::Authorized;
    bool answer = true;
    /// The question stands until `answerNow`.
    bool isAsking = false;
    bool refusesToMake = false;
    bool refusesToRecord = false;
    QByteArray sound = "sound";
    double seconds = 1;
    float power = -160;

    /// Of the last recording made; the recorder is null once it is gone.
    QString path;
    AudioSettings settings;
    Recorder *current = nullptr;

private:
    struct Question {
        FakeMicrophone &microphone;

        bool await_ready() const { return !microphone.isAsking; }
        void await_suspend(std::coroutine_handle<> coroutine) const { microphone.m_waiting = coroutine; }
        void await_resume() const {}
    };

    std::coroutine_handle<> m_waiting;
};

class FakeMicrophone::Recorder : public AudioFileRecorder {
public:
    Recorder(FakeMicrophone &microphone, QString path) : m_microphone(microphone), m_path(std::move(path))
    {
        QFile file(m_path);
        file.open(QIODevice::WriteOnly);
        m_microphone.current = this;
    }
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;
    ~Recorder() override { m_microphone.current = nullptr; }

    void setMeteringEnabled(bool enabled) override { m_isMetering = enabled; }
    bool record() override { return m_isRecording = !m_microphone.refusesToRecord; }
    void stop() override
    {
        m_isRecording = false;
        QFile file(m_path);
        file.open(QIODevice::WriteOnly);
        file.write(m_microphone.sound);
    }
    double currentTime() const override { return m_microphone.seconds; }
    bool isRecording() const override { return m_isRecording; }
    void updateMeters() override { m_reading = m_isMetering ? m_microphone.power : -160; }
    float averagePower(int /*channel*/) const override { return m_reading; }
    QString path() const override { return m_path; }
    void setEndedHandler(std::function<void()> handler) override { m_ended = std::move(handler); }

    /// The microphone goes away.
    void end()
    {
        m_isRecording = false;
        m_ended();
    }

private:
    FakeMicrophone &m_microphone;
    QString m_path;
    std::function<void()> m_ended;
    bool m_isMetering = false;
    bool m_isRecording = false;
    float m_reading = -160;
};

inline std::unique_ptr<AudioFileRecorder> FakeMicrophone::makeRecorder(const QString &filePath,
                                                                       const AudioSettings &audioSettings)
{
    if (refusesToMake) {
        throw LocalizedError(QStringLiteral("The disk is full."));
    }
    path = filePath;
    settings = audioSettings;
    return std::make_unique<Recorder>(*this, filePath);
}
