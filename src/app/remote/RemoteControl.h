// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <map>

class AppModel;
class Application;
class RemoteInterface;

/// The running program on the session bus: the actions that the desktop, scripts and a second start call, and its
/// status. One object per process; main thread only.
class RemoteControl : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    static QString service() { return QStringLiteral("app.quillo.Quillo"); }
    static QString path() { return QStringLiteral("/app/quillo/Quillo"); }
    static QString interface() { return QStringLiteral("app.quillo.Quillo1"); }

    explicit RemoteControl(QDBusConnection bus);
    ~RemoteControl() override;

    /// Whether a process answers for the program on `bus`.
    static bool isRunning(const QDBusConnection &bus);

    enum class Claim { IsFirst, IsSecond, NoBus };
    /// Makes this process the one that answers for the program, unless another does already. Calls that arrive from now
    /// on are served when the event loop runs.
    Claim claim();

    /// Whom the actions act on, until `clearTarget`. Without a target they are refused.
    void setTarget(AppModel &model, Application &application);
    void clearTarget();

    /// Performs an action by its name; false for a name that is none.
    bool perform(const QString &action);
    /// What starting the program a second time does: the history window comes to the front.
    void applicationShouldHandleReopen();
    QVariantMap status() const;

    /// Answers the caller on the bus, if there is one, that there is no such action.
    void refuse(const QString &action);

private:
    void press();
    void release();

    QDBusConnection m_bus;
    RemoteInterface *m_interface;
    AppModel *m_model = nullptr;
    std::map<QString, std::function<void()>> m_actions;
    QString m_announced;   ///< the state that others heard of last
    bool m_isHeld = false; ///< pressed by command and not released yet
};
