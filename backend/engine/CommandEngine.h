// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Engine.h"

#include <QStringList>

#include <chrono>

class QProcess;

struct CommandOptions {
    /// The program and its arguments, which no shell reads. "{file}" stands for the recording, a WAV file in memory;
    /// without it, that comes on the standard input. "{language}" and "{prompt}" stand for what the request tells.
    QStringList command;
    std::string language = {};                  ///< where a request tells none
    std::chrono::milliseconds timeout{110'000}; ///< less than the 120 s after which the desktop program gives up
    qint64 memory = 0;                          ///< bytes of address space; 0 is no limit
    qint64 processorTime = 0;                   ///< seconds; 0 is no limit
    int concurrency = 1;
};

/// Any program that reads a WAV file (16 kHz, mono, 16 bit) and prints the words, as text or as JSON with the member
/// "text". It runs in a process group of its own, which is killed when it takes too long or nobody waits any more. Of
/// the server's environment it has PATH, HOME and the locale.
class CommandEngine : public Engine {
public:
    explicit CommandEngine(CommandOptions options);

    int concurrency() const override { return m_options.concurrency; }
    QString transcribe(const Recording &recording) override;

private:
    QStringList commandFor(const Recording &recording, const QString &file) const;
    void limit(QProcess &process, int file) const;

    CommandOptions m_options;
};
