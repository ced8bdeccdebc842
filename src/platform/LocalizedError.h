// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <exception>
#include <utility>

/// A failure whose text is made where it happens and shown to the user as it stands.
class LocalizedError : public std::exception {
    Q_DECLARE_TR_FUNCTIONS(LocalizedError)

public:
    explicit LocalizedError(QString description) : m_description(std::move(description)) {}

    /// The sentence the user sees. Never holds a credential, a path or a transcript.
    const QString &localizedDescription() const { return m_description; }

    const char *what() const noexcept override { return "LocalizedError"; }

private:
    QString m_description;
};
