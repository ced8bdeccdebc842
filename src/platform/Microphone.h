// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>

#include <functional>
#include <memory>

/// What a recording is encoded to. The keys are exactly these four.
struct AudioSettings {
    QByteArray formatId;
    int sampleRate = 0;
    int channels = 0;
    int bitRate = 0;
};

/// One recording of the default microphone to a file, encoded while it is recorded. Main thread only.
class AudioFileRecorder {
public:
    AudioFileRecorder() = default;
    AudioFileRecorder(const AudioFileRecorder &) = delete;
    AudioFileRecorder &operator=(const AudioFileRecorder &) = delete;
    /// A recording still running is ended; its file stays.
    virtual ~AudioFileRecorder() = default;

    virtual void setMeteringEnabled(bool enabled) = 0;

    /// Starts capturing and returns at once; false when there is no microphone to record.
    virtual bool record() = 0;

    /// Ends the recording; the file is complete when the call returns. Nothing heard leaves an empty file.
    virtual void stop() = 0;

    /// Seconds of sound captured so far.
    virtual double currentTime() const = 0;

    /// True from `record()` until `stop()` or until the capture ended by itself.
    virtual bool isRecording() const = 0;

    /// Takes a reading for `averagePower`: the sound since the last call.
    virtual void updateMeters() = 0;

    /// Average power of the last reading in decibels: 0 at full scale, -160 for silence or without metering.
    virtual float averagePower(int channel) const = 0;

    /// Location of the file.
    virtual QString path() const = 0;

    /// Called once, from the event loop, when the capture ends by itself (microphone or sound server gone, no sound
    /// arriving any more). What was heard is kept: `stop()` completes the file. Never called after `stop()`.
    virtual void setEndedHandler(std::function<void()> handler) = 0;
};

/// The default microphone of the desktop. Main thread only.
class Microphone {
public:
    /// The values are those of the platform's authorisation status.
    enum class Authorization { NotDetermined = 0, Restricted = 1, Denied = 2, Authorized = 3 };

    virtual ~Microphone() = default;

    virtual Authorization authorizationStatus() const = 0;

    /// Asks the user where the desktop has such a question; answers with what holds afterwards.
    virtual QCoro::Task<bool> requestAccess() = 0;

    /// Prepares a recording to a new file at `path` (mode 0600). Throws LocalizedError when the file or the encoder
    /// can't be made.
    virtual std::unique_ptr<AudioFileRecorder> makeRecorder(const QString &path, const AudioSettings &settings) = 0;
};
