// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

#include <optional>
#include <variant>

/// The program that runs in this session, as another process reaches it. Calls block until it has answered, and never
/// start it.
class RunningInstance {
public:
    /// Why it did not do what was asked, in one sentence, and the exit status that stands for it (ExitStatus).
    struct Failure {
        QString sentence;
        int status;
    };

    explicit RunningInstance(QDBusConnection bus) : m_bus(std::move(bus)) {}

    bool isThere() const;

    /// Has it perform one of the actions of the desktop file; nothing when it did.
    std::optional<Failure> perform(const QString &action) const;
    /// Brings it forward, as a second start does.
    std::optional<Failure> bringForward() const;
    /// What it says of itself.
    std::variant<QVariantMap, Failure> status() const;

private:
    std::optional<Failure> unreachable() const;
    std::optional<Failure> call(const QString &method, const QVariantList &arguments) const;

    QDBusConnection m_bus;
};
