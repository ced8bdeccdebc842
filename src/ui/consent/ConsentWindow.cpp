// SPDX-License-Identifier: MIT
#include "ui/consent/ConsentWindow.h"

#include "platform/Application.h"
#include "ui/windows/WindowPlacement.h"

#include <QEvent>
#include <QWindow>

#include <utility>

ConsentWindow::ConsentWindow(AIConsent &consent, const Preferences &preferences, const PackagedInfo &packagedInfo,
                             Application &application, const Screens &screens, WindowFactory makeWindow)
    : m_consent(consent),
      m_preferences(preferences),
      m_packagedInfo(packagedInfo),
      m_application(application),
      m_screens(screens),
      m_makeWindow(std::move(makeWindow))
{
}

ConsentWindow::~ConsentWindow() = default;

void ConsentWindow::show(bool isReview, FinishHandler onFinish)
{
    m_onFinish = nullptr;
    dispose();
    m_onFinish = std::move(onFinish);
    auto disclosure = std::make_unique<DisclosureView>(isReview, m_consent, m_preferences, m_packagedInfo,
                                                       [this](bool wantsConsent) { complete(wantsConsent); });
    m_window = m_makeWindow(*disclosure);
    disclosure.release()->setParent(m_window.get()); // it goes after the view that observes it
    m_window->installEventFilter(this);
    WindowPlacement::centre(*m_window, m_screens);
    m_application.bringToFront(*m_window);
}

void ConsentWindow::complete(bool wantsConsent)
{
    const FinishHandler onFinish = std::exchange(m_onFinish, nullptr);
    dispose();
    if (onFinish) {
        onFinish(wantsConsent);
    }
}

void ConsentWindow::dispose()
{
    if (!m_window) {
        return;
    }
    m_window->removeEventFilter(this);
    m_window->hide();
    m_window.release()->deleteLater();
}

bool ConsentWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close) {
        windowWillClose();
    }
    return QObject::eventFilter(watched, event);
}

void ConsentWindow::windowWillClose()
{
    complete(false); // by the title bar, or any way other than a button
}
