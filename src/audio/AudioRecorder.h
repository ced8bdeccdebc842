// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Microphone.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Files;

/// A finished recording: the file is the holder's to discard.
struct Recording {
    QString path;
    /// Length of the sound captured.
    double seconds = 0;
};

/// Records one dictation at a time from the default microphone into the temporary folder. Main thread only.
class AudioRecorder {
public:
    enum class Permission { Granted, Denied, Undetermined };

    AudioRecorder(Microphone &microphone, const Files &files);

    /// What recordings are encoded to: AAC, mono, 44.1 kHz, 64 kbit/s.
    static AudioSettings settings();
    /// A new name in the temporary folder, "dictation-<UUID>.m4a".
    static QString newPath(const Files &files);

    /// The recording in progress, for its level; null when idle.
    AudioFileRecorder *recorder() const { return m_recorder.get(); }

    /// Starts a recording to a new file. `onEnded` is called when the microphone goes away
    /// before `stop()`. Throws LocalizedError when there is nothing to record from.
    void start(std::function<void()> onEnded);

    /// Ends the recording and hands it over; nothing when none runs or nothing was heard.
    std::optional<Recording> stop();

    /// Ends the recording and deletes its file.
    void cancel();

    /// Deletes a recording; a missing file is no failure.
    static void discard(const QString &path);

    Permission permission() const;
    QCoro::Task<bool> requestPermission();

private:
    Microphone &m_microphone;
    const Files &m_files;
    std::unique_ptr<AudioFileRecorder> m_recorder;
};
