// SPDX-License-Identifier: MIT
#include "ui/windows/WindowPlacement.h"

#include "platform/Screens.h"

#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Above a window's content; how high it really is nobody knows before the window has been shown.
constexpr int titleBarHeight = 32;

int within(int place, int length, int from, int available)
{
    return std::max(from, std::min(place, from + available - length));
}

/// Puts the window at `frame`, moved and made smaller as far as it takes to be on the screen whole.
void place(QWindow &window, QRect frame, const Screen &screen)
{
    const QRect area = screen.visibleFrame.toRect().adjusted(0, titleBarHeight, 0, 0);
    if (window.minimumSize() != window.maximumSize()) {
        window.setMinimumSize(window.minimumSize().boundedTo(area.size()));
        frame.setSize(frame.size().boundedTo(area.size()));
    }
    frame.moveTo(within(frame.x(), frame.width(), area.x(), area.width()),
                 within(frame.y(), frame.height(), area.y(), area.height()));
    window.setGeometry(frame);
}

/// The screen that shows most of the frame; the one with the pointer where none shows any of it.
std::optional<Screen> screenOf(const QRect &frame, const Screens &screens)
{
    std::optional<Screen> best = screens.underPointer();
    qreal most = 0;
    for (const Screen &screen : screens.screens()) {
        const QRectF shown = screen.visibleFrame & QRectF(frame);
        if (shown.width() * shown.height() > most) {
            most = shown.width() * shown.height();
            best = screen;
        }
    }
    return best;
}

} // namespace

void WindowPlacement::centre(QWindow &window, const Screens &screens)
{
    if (const auto screen = screens.underPointer()) {
        QRect frame(QPoint(), window.size());
        frame.moveCenter(screen->visibleFrame.center().toPoint());
        place(window, frame, *screen);
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
    if (const auto screen = screenOf(frame, screens)) {
        place(window, frame, *screen);
    }
}
