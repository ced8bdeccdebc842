// SPDX-License-Identifier: MIT
#include "app/model/UnsentRecordings.h"

#include "app/model/TokenBalance.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Preferences.h"
#include "service/ApiClient.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype mostRecordings = 50;
constexpr auto longestKept = std::chrono::days(7);
constexpr auto retryPeriod = 1min;
constexpr int firstServerError = 500;

int64_t secondsSinceEpoch(Clock::Instant instant)
{
    return std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
}

// A file's name says when it was kept, and for which group: "1790000000_<group>_<UUID>.m4a". Names sort by age.
int64_t keptAt(const QString &path)
{
    return QFileInfo(path).fileName().section(u'_', 0, 0).toLongLong();
}

std::optional<QString> groupOf(const QString &path)
{
    const QString id = QFileInfo(path).fileName().section(u'_', 1, 1);
    return id.isEmpty() ? std::nullopt : std::optional(id);
}

} // namespace

UnsentRecordings::UnsentRecordings(const Platform &platform, ApiClient &client, TranscriptionStore &store,
                                   const GroupStore &groups, TokenBalance &balance)
    : m_platform(platform),
      m_client(client),
      m_store(store),
      m_groups(groups),
      m_balance(balance),
      m_folder(platform.files.applicationSupportFolder() + u"/Quillo/Unsent"_s)
{
    for (const QFileInfo &file : QDir(m_folder).entryInfoList({u"*_*_*.m4a"_s}, QDir::Files, QDir::Name)) {
        m_paths.append(file.filePath());
    }
    dropOld();
    retryWhileThereAreAny();
}

bool UnsentRecordings::isWorthAnotherTry(const ApiError &error)
{
    return error.code() == ApiError::network().code() || error.status() >= firstServerError;
}

bool UnsentRecordings::keep(const QString &path, const std::optional<QString> &groupId)
{
    if (!m_platform.preferences.boolean(preference()) || !m_platform.files.createFolder(m_folder)) {
        return false;
    }
    const QString name = u"%1_%2_%3.m4a"_s.arg(secondsSinceEpoch(m_platform.clock.now()))
                             .arg(groupId.value_or(QString()), QUuid::createUuid().toString(QUuid::WithoutBraces));
    const QString kept = m_folder + u'/' + name;
    if (!QFile::rename(path, kept)) {
        return false;
    }
    QFile::setPermissions(kept, QFile::ReadOwner | QFile::WriteOwner);
    m_paths.append(kept);
    dropOld();
    retryWhileThereAreAny();
    Q_EMIT changed();
    return true;
}

void UnsentRecordings::dropOld()
{
    const int64_t oldest = secondsSinceEpoch(m_platform.clock.now() - longestKept);
    while (!m_paths.isEmpty() && (m_paths.size() > mostRecordings || keptAt(m_paths.first()) < oldest)) {
        QFile::remove(m_paths.takeFirst());
    }
}

void UnsentRecordings::drop(const QString &path)
{
    QFile::remove(path);
    m_paths.removeOne(path);
    retryWhileThereAreAny();
    Q_EMIT changed();
}

void UnsentRecordings::retryWhileThereAreAny()
{
    if (m_paths.isEmpty()) {
        m_retry.reset();
    } else if (!m_retry) {
        m_retry = m_platform.clock.every(retryPeriod, [this] { sendAgain(); });
    }
}

void UnsentRecordings::sendAgain()
{
    dropOld();
    if (!m_isSending) {
        send();
    }
}

void UnsentRecordings::deleteAll()
{
    while (!m_paths.isEmpty()) {
        drop(m_paths.last());
    }
}

QCoro::Task<void> UnsentRecordings::send()
{
    m_isSending = true;
    Q_EMIT changed();
    const QStringList paths = m_paths;
    for (const QString &path : paths) {
        if (m_paths.contains(path) && !co_await sendOne(path)) {
            break;
        }
    }
    m_isSending = false;
    Q_EMIT changed();
}

/// False when the others need not be tried now.
QCoro::Task<bool> UnsentRecordings::sendOne(QString path)
{
    try {
        const Transcript transcript = co_await m_client.transcribe(path);
        m_balance.setBalance(transcript.balance);
        const QString text = transcript.text.trimmed();
        if (!text.isEmpty()) {
            const auto group = m_groups.group(groupOf(path));
            m_store.add(text, group ? std::optional(group->id) : std::nullopt);
        }
        drop(path);
    } catch (const ApiError &error) {
        co_return !isWorthAnotherTry(error);
    } catch (const LocalizedError &) {
        co_return false; // consent was withdrawn
    }
    co_return true;
}
