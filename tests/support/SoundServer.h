// SPDX-License-Identifier: MIT
#pragma once

#include "support/ChildProcess.h"

#include <QTemporaryDir>

#include <memory>

/// A sound server of the test's own with a virtual microphone that hears what is played to it. Any number can run at
/// a time; none touches the user's. Every call returns when it is done; failures throw std::runtime_error.
class SoundServer {
public:
    enum class Devices { Microphone, OutputOnly, None };

    explicit SoundServer(Devices devices = Devices::Microphone);
    ~SoundServer();

    /// For $PULSE_SERVER or a client's connect call.
    QString address() const;

    /// For programs that use this server as the desktop's own.
    QProcessEnvironment environment() const;

    /// Starts playing a file of mono 16-bit samples into the microphone; the process ends when all has been played.
    std::unique_ptr<ChildProcess> play(const QString &rawFile, int rate) const;

    /// Runs pactl, for example {"list", "short", "source-outputs"}, and returns what it prints.
    QByteArray control(const QStringList &arguments) const;

    void addOutput() const;
    void addMicrophone() const;
    void removeMicrophone() const;

    /// Kills the server, which leaves its socket behind; `start` puts a new one in its place.
    void kill();
    void start();

    /// Stops the server from answering without closing a connection.
    void freeze();
    void thaw();

private:
    QString runtimeFolder() const;
    void signal(int number);

    QTemporaryDir m_folder;
    Devices m_devices;
    std::unique_ptr<ChildProcess> m_process;
};
