// SPDX-License-Identifier: MIT
#pragma once

#include "support/ChildProcess.h"
#include "support/Session.h"

#include <QJsonObject>
#include <QString>

/// Chromium as the default browser of a session, without a window, driven over the WebDriver protocol. What fails
/// throws std::runtime_error.
class Browser {
public:
    /// Makes it the browser that opens the session's web addresses; none runs yet.
    explicit Browser(const Session &session);
    Browser(const Browser &) = delete;
    Browser &operator=(const Browser &) = delete;
    /// Ends the browser, where it runs.
    ~Browser();

    /// Waits until something has opened the browser, and takes it over.
    void awaitOpened();
    QString address();
    /// The page's text, as it is read.
    QString text();
    /// Clicks the first element that a CSS selector finds.
    void click(const QString &selector);

private:
    QJsonValue call(const QString &path, const QJsonObject &body);
    QJsonValue script(const QString &code);

    QString m_profile;
    ChildProcess m_driver;
    QString m_url;
    QString m_session;
};
