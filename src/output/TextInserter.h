// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

#include <QCoroTask>
#include <QString>

class Accessibility;
class KeyEvents;
class Pasteboard;

/// Puts text into the program in front: by the pasteboard and a synthetic paste keystroke, after which the earlier
/// pasteboard content is put back. Main thread only; the waits suspend.
class TextInserter {
public:
    /// Pasted: the text was pasted and the pasteboard put back. Copied: the text is only on the pasteboard.
    enum class Outcome { Pasted, Copied };

    TextInserter(Pasteboard &pasteboard, KeyEvents &keyEvents, Accessibility &accessibility, Clock &clock);

    QCoro::Task<Outcome> insert(QString text);

private:
    QCoro::Task<void> waitForModifierRelease();
    void postCommandV();

    Pasteboard &m_pasteboard;
    KeyEvents &m_keyEvents;
    Accessibility &m_accessibility;
    Clock &m_clock;
};
