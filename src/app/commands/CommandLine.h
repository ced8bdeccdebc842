// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <variant>

/// Exit statuses of all commands.
namespace ExitStatus {
inline constexpr int done = 0;
inline constexpr int failed = 1;
inline constexpr int usage = 2;
inline constexpr int notRunning = 3;
} // namespace ExitStatus

/// What the words after the program's name ask for.
namespace CommandLine {

/// Starts the program, or brings the running one forward.
struct Start {};
/// Prints the text on standard output and ends well.
struct Print {
    QString text;
};
/// Has the running program do something.
struct Act {
    QString action;
};
struct Status {
    bool asJson = false;
};
struct Transcribe {
    /// A file's path; "-" is standard input.
    QString path;
};
struct Doctor {};
/// Takes over what can be read in the damaged history at `path`.
struct RecoverHistory {
    QString path;
};
/// Can't be understood; one sentence.
struct Mistake {
    QString text;
};

using Request = std::variant<Start, Print, Act, Status, Transcribe, Doctor, RecoverHistory, Mistake>;

/// `words` without the program's name.
Request parse(const QStringList &words, const QString &version);

} // namespace CommandLine
