// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

/// What one service of the desktop is found to offer.
struct Finding {
    Q_DECLARE_TR_FUNCTIONS(Finding)

public:
    /// Problem: dictation can't work. Note: it works, with less comfort.
    enum class Level { Good, Note, Problem };

    QString subject;
    Level level = Level::Good;
    /// What was found, one line.
    QString text;
    /// What to do about it; empty when there is nothing to do.
    QString remedy = {};
};
