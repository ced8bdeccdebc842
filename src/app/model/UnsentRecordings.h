// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "ui/models/UnsentProperties.h"

#include <QCoroTask>
#include <QStringList>

#include <memory>
#include <optional>

class ApiClient;
class ApiError;
class GroupStore;
class Preferences;
class TokenBalance;
class TranscriptionStore;
struct Platform;

/// Where the user wants it, a recording that the backend could not be given is kept in a folder beside the history: for
/// seven days, and fifty of them at most. While there are any they are sent again every minute, until the backend takes
/// them. Main thread only.
class UnsentRecordings : public UnsentProperties {
    Q_OBJECT

public:
    /// The switch, off where nothing is stored.
    static QString preference() { return QStringLiteral("keepUnsentRecordings"); }

    UnsentRecordings(const Platform &platform, ApiClient &client, TranscriptionStore &store, const GroupStore &groups,
                     TokenBalance &balance);

    /// The backend could not be reached, or did not know what to do: another time it may.
    static bool isWorthAnotherTry(const ApiError &error);

    /// Takes over the file of a recording for that group. False, and the file stays, while the switch is off and where
    /// the folder can't be written.
    bool keep(const QString &path, const std::optional<QString> &groupId);

    int count() const override { return int(m_paths.size()); }
    bool isSending() const override { return m_isSending; }
    void sendAgain() override;
    void deleteAll() override;

private:
    void dropOld();
    void drop(const QString &path);
    void retryWhileThereAreAny();
    QCoro::Task<void> send();
    QCoro::Task<bool> sendOne(QString path);

    const Platform &m_platform;
    ApiClient &m_client;
    TranscriptionStore &m_store;
    const GroupStore &m_groups;
    TokenBalance &m_balance;
    QString m_folder;
    QStringList m_paths; ///< the oldest first
    std::unique_ptr<Clock::Timer> m_retry;
    bool m_isSending = false;
};
