// SPDX-License-Identifier: MIT
#pragma once

#include "ui/consent/DisclosureView.h"

#include <QObject>

#include <functional>
#include <memory>

class AIConsent;
class Application;
class PackagedInfo;
class Preferences;
class QWindow;
class Screens;

/// The one window that asks whether recordings may be sent to OpenAI. Main thread only.
class ConsentWindow : public QObject {
    Q_OBJECT

public:
    using FinishHandler = DisclosureView::FinishHandler;
    /// Makes the window with the view of a disclosure in it, not yet shown; the disclosure outlives the window.
    using WindowFactory = std::function<std::unique_ptr<QWindow>(DisclosureView &)>;

    ConsentWindow(AIConsent &consent, const Preferences &preferences, const PackagedInfo &packagedInfo,
                  Application &application, const Screens &screens, WindowFactory makeWindow);
    ConsentWindow(const ConsentWindow &) = delete;
    ConsentWindow &operator=(const ConsentWindow &) = delete;
    ~ConsentWindow() override;

    /// Opens the window in place of an open one, whose handler is then never called. The handler is called once: with
    /// the answer, or with false when the window is closed any other way.
    void show(bool isReview, FinishHandler onFinish);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void windowWillClose();
    void complete(bool wantsConsent);
    /// The window and its disclosure may be in the middle of a call: both go when the event loop is reached.
    void dispose();

    AIConsent &m_consent;
    const Preferences &m_preferences;
    const PackagedInfo &m_packagedInfo;
    Application &m_application;
    const Screens &m_screens;
    WindowFactory m_makeWindow;
    FinishHandler m_onFinish;
    std::unique_ptr<QWindow> m_window;
};
