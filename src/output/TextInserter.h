// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Pasteboard.h"

#include <QCoroTask>
#include <QString>

#include <coroutine>
#include <deque>
#include <optional>

class Accessibility;
class KeyEvents;

/// Puts text into the program in front: by the pasteboard and a synthetic paste keystroke, after which the earlier
/// pasteboard content is put back. Main thread only; the waits suspend. Inserts take turns, in the order of their
/// calls, so that the content put back is the user's and never a text on its way.
class TextInserter {
public:
    enum class Outcome {
        /// The text was pasted and the pasteboard put back.
        Pasted,
        /// The text is only on the pasteboard: nobody could be given it, or nobody took it.
        Copied,
        /// The desktop refused the text.
        Refused
    };

    TextInserter(Pasteboard &pasteboard, KeyEvents &keyEvents, Accessibility &accessibility, Clock &clock);
    TextInserter(const TextInserter &) = delete;
    TextInserter &operator=(const TextInserter &) = delete;
    /// Puts the pasteboard back if an insert had not come to that yet.
    ~TextInserter();

    QCoro::Task<Outcome> insert(QString text);

private:
    struct Turn;
    using Content = QList<PasteboardItem>;

    /// A text that stands on the pasteboard for a moment.
    struct Visit {
        Content earlier;
        int64_t changeCount;
    };

    void passTurn();
    QCoro::Task<Outcome> insertNow(QString text);
    QCoro::Task<bool> writeText(QString text);
    QCoro::Task<bool> waitUntilKeysArrive();
    QCoro::Task<void> waitUntilRead(int64_t readsBefore);
    void restore();
    bool isUnchanged();
    Outcome leaveCopied(const QString &text);

    Pasteboard &m_pasteboard;
    KeyEvents &m_keyEvents;
    Accessibility &m_accessibility;
    Clock &m_clock;
    bool m_isInserting = false;
    std::deque<std::coroutine_handle<>> m_waiting;
    std::optional<Visit> m_visit;
};
