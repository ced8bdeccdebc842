// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LocalizedError.h"

#include <QCoreApplication>
#include <QString>

/// The one error of the service client. `localizedDescription()` is its message for the user.
class ApiError : public LocalizedError {
    Q_DECLARE_TR_FUNCTIONS(ApiError)

public:
    ApiError(QString code, QString message, int status)
        : LocalizedError(std::move(message)), m_code(std::move(code)), m_status(status)
    {
    }

    /// The client's own code, or one the backend supplied.
    const QString &code() const { return m_code; }

    /// HTTP status of the response behind the error; 0 when there was none.
    int status() const { return m_status; }

    static ApiError notConfigured();
    static ApiError network();
    static ApiError server(int status);

private:
    QString m_code;
    int m_status;
};
