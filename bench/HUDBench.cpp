// SPDX-License-Identifier: MIT
#include "bench/Bench.h"
#include "platform/StatusPanel.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/x11/X11Backend.h"
#include "platform/x11/connection/XcbPtr.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "support/Await.h"
#include "support/ChildProcess.h"
#include "support/VirtualDisplay.h"
#include "ui/hud/HUDView.h"
#include "ui/hud/RecordingHUD.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRasterWindow>

#include <cstdio>
#include <stdexcept>

// From show() to the HUD's frame on the screen, the first time in a process and the second, with the view prepared at
// start as the program does. The reference is a bare window that paints one rectangle. Each process measures one pair.

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int processes = 9;

/// Waits until the X server has done what this process asked it to draw.
void finishDrawing()
{
    auto *const xcb = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const XcbPtr<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

class BareWindow final : public QRasterWindow {
public:
    BareWindow() { setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint); }
    int frames = 0;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { QPainter(this).fillRect(QRect(QPoint(), size()), Qt::black); }
    bool event(QEvent *event) override
    {
        const bool isPaint = event->type() == QEvent::Paint; // painted and handed to the server on return
        const bool handled = QRasterWindow::event(event);
        frames += isPaint ? 1 : 0;
        return handled;
    }
};

/// Shows twice and prints both times.
void measureShows(const std::function<void()> &show, const std::function<void()> &hide, const int &frames)
{
    pause(300ms);
    for (int i = 0; i < 2; ++i) {
        const int before = frames;
        const Instant from = std::chrono::steady_clock::now();
        show();
        if (!await([&] { return frames > before; })) {
            throw std::runtime_error("nothing was drawn");
        }
        finishDrawing();
        std::printf("%f\n", milliseconds(from, std::chrono::steady_clock::now()));
        pause(300ms);
        hide();
        pause(300ms);
    }
}

void measureHUD()
{
    SystemClock clock;
    QString whyNot;
    const auto backend = X11Backend::create(clock, TerminalClasses::defaults(), &whyNot);
    if (!backend) {
        throw std::runtime_error(whyNot.toStdString());
    }
    QQmlEngine engine;
    std::unique_ptr<StatusPanel> prepared;
    RecordingHUD hud(clock, backend->screens(), [&](HUDModel &) { return std::move(prepared); });
    prepared = HUDView::makePanel(engine, backend->statusPanels(), hud.model());
    auto *const window = qobject_cast<QQuickWindow *>(QGuiApplication::allWindows().constFirst());
    int frames = 0;
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { ++frames; });
    measureShows([&] { hud.show(HUDPhase::Recording{}); }, [&] { hud.hide(); }, frames);
}

void measureBare()
{
    BareWindow window;
    window.resize(280, 56);
    measureShows([&] { window.show(); }, [&] { window.hide(); }, window.frames);
}

void measure()
{
    const VirtualDisplay display(VirtualDisplay::WindowManager::Openbox);
    std::vector<double> hud[2];
    std::vector<double> bare[2];
    for (int i = 0; i < processes; ++i) {
        for (const auto &[name, times] : {std::pair(u"hud"_s, hud), std::pair(u"bare"_s, bare)}) {
            auto environment = display.environment();
            environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
            ChildProcess child(QCoreApplication::applicationFilePath(), {name}, environment);
            child.wait();
            times[0].push_back(child.readLine().toDouble());
            times[1].push_back(child.readLine().toDouble());
        }
    }
    report({u"HUD: show to first frame (reference: bare window)"_s, u"ms"_s, median(hud[0]), median(bare[0])});
    report({u"HUD: show to second frame (reference: bare window)"_s, u"ms"_s, median(hud[1]), median(bare[1])});
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 1) {
        const QCoreApplication application(argc, argv);
        return runBench(measure);
    }
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);
    const QGuiApplication application(argc, argv);
    return runBench(QByteArray(argv[1]) == "hud" ? measureHUD : measureBare);
}
