// SPDX-License-Identifier: MIT
#include "ui/windows/WindowPlacement.h"

#include "platform/Screens.h"

#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// As much of a window must be on a screen for a person to drag it back.
constexpr int leastVisible = 64;

} // namespace

void WindowPlacement::centre(QWindow &window, const Screens &screens)
{
    if (const auto screen = screens.underPointer()) {
        QRect frame(QPoint(), window.size());
        frame.moveCenter(screen->visibleFrame.center().toPoint());
        window.setPosition(frame.topLeft());
    }
}

QString WindowPlacement::saved(const QWindow &window)
{
    const QRect frame = window.geometry();
    return u"%1 %2 %3 %4"_s.arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height());
}

void WindowPlacement::restore(QWindow &window, const QString &geometry, const Screens &screens)
{
    QList<int> numbers;
    for (const QString &word : geometry.split(u' ')) {
        bool isNumber = false;
        numbers.append(word.toInt(&isNumber));
        if (!isNumber) {
            return;
        }
    }
    if (numbers.size() != 4) {
        return;
    }
    const QRect frame(numbers[0], numbers[1], numbers[2], numbers[3]);
    const QList<Screen> all = screens.screens();
    const bool isReachable = std::ranges::any_of(all, [&](const Screen &screen) {
        const QRect shown = screen.visibleFrame.toRect() & frame;
        return shown.width() >= leastVisible && shown.height() >= leastVisible;
    });
    if (isReachable) {
        window.setGeometry(frame);
    }
}
