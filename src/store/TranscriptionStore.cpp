// SPDX-License-Identifier: MIT
#include "store/TranscriptionStore.h"

#include "platform/Clock.h"
#include "store/JsonWriter.h"
#include "store/newIdentifier.h"

#include <QDateTime>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

void encode(JsonWriter &json, const Transcription &entry)
{
    json.raw("{\"id\":").string(entry.id);
    json.raw(",\"text\":").string(entry.text);
    json.raw(",\"timestamp\":").string(entry.timestamp);
    if (entry.categoryId) {
        json.raw(",\"categoryId\":").string(*entry.categoryId);
    }
    json.raw("}");
}

QString timestamp(Clock::Instant now)
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(now).time_since_epoch().count();
    return QDateTime::fromSecsSinceEpoch(seconds).toUTC().toString(Qt::ISODate);
}

} // namespace

TranscriptionStore::TranscriptionStore(Files &files, Clock &clock)
    : RecordStore(files, clock, u"transcriptions.json"_s,
                  {tr("History"), tr("Kept in memory: the history can't be saved"),
                   tr("The history can't be read: a new one begins, the old file is kept")}),
      m_clock(clock)
{
    load();
}

QList<Transcription> TranscriptionStore::items(const std::optional<QString> &groupId) const
{
    if (!groupId) {
        return items();
    }
    QList<Transcription> filed;
    std::ranges::copy_if(items(), std::back_inserter(filed),
                         [&](const Transcription &entry) { return entry.categoryId == groupId; });
    return filed;
}

void TranscriptionStore::add(const QString &text, const std::optional<QString> &groupId)
{
    const Transcription entry{newIdentifier(), text, timestamp(m_clock.now()), groupId};
    JsonWriter json;
    encode(json, entry);
    json.raw(items().isEmpty() ? "" : ",");
    m_entriesJson.prepend(json.bytes());
    apply([entry](QList<Transcription> &items) { items.prepend(entry); });
    saveAndTell([this] { Q_EMIT added(); });
}

void TranscriptionStore::move(const QString &id, const std::optional<QString> &groupId)
{
    const auto place = std::ranges::find(items(), id, &Transcription::id) - items().begin();
    if (place == items().size()) {
        return;
    }
    apply([id, groupId](QList<Transcription> &items) {
        const auto entry = std::ranges::find(items, id, &Transcription::id);
        if (entry != items.end()) {
            entry->categoryId = groupId;
        }
    });
    encodeAll();
    saveAndTell([this, place] { Q_EMIT changed(place); });
}

void TranscriptionStore::remove(const QString &id)
{
    const auto place = std::ranges::find(items(), id, &Transcription::id) - items().begin();
    const qsizetype count = items().size();
    apply([id](QList<Transcription> &items) {
        items.removeIf([&](const Transcription &entry) { return entry.id == id; });
    });
    const bool isOne = count - items().size() == 1;
    encodeAll();
    saveAndTell([this, place, isOne] {
        if (isOne) {
            Q_EMIT removed(place);
        } else {
            Q_EMIT reset();
        }
    });
}

void TranscriptionStore::clear()
{
    // Not those that another login has dictated meanwhile, which nobody has seen here.
    QSet<QString> ids;
    for (const Transcription &entry : items()) {
        ids.insert(entry.id);
    }
    apply([ids](QList<Transcription> &items) {
        items.removeIf([&](const Transcription &entry) { return ids.contains(entry.id); });
    });
    encodeAll();
    saveAndTell([this] { Q_EMIT reset(); });
}

std::optional<qsizetype> TranscriptionStore::recover(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QList<Transcription> found;
    salvageJsonRecords(file.readAll(), [&](const JsonRecord &object) {
        if (auto entry = decode(object)) {
            found.append(*std::move(entry));
        }
        return true;
    });
    const qsizetype count = items().size();
    apply([found](QList<Transcription> &items) {
        QSet<QString> ids;
        for (const Transcription &entry : std::as_const(items)) {
            ids.insert(entry.id);
        }
        QList<Transcription> missing;
        std::ranges::copy_if(found, std::back_inserter(missing),
                             [&](const Transcription &entry) { return !ids.contains(entry.id); });
        QList<Transcription> merged;
        std::ranges::merge(missing, items, std::back_inserter(merged), std::ranges::greater(),
                           &Transcription::timestamp, &Transcription::timestamp);
        items = std::move(merged);
    });
    encodeAll();
    saveAndTell([this] { Q_EMIT reset(); });
    return items().size() - count;
}

std::optional<Transcription> TranscriptionStore::decode(const JsonRecord &object) const
{
    const auto id = object.string("id");
    const auto text = object.string("text");
    const auto timestamp = object.string("timestamp");
    if (!id || !text || !timestamp || !object.isStringOrNull("categoryId")) {
        return std::nullopt;
    }
    return Transcription{*id, *text, *timestamp, object.string("categoryId")};
}

void TranscriptionStore::announce()
{
    Q_EMIT itemsChanged();
    Q_EMIT reset();
}

void TranscriptionStore::encodeAll()
{
    JsonWriter json;
    for (qsizetype i = 0; i < items().size(); ++i) {
        if (i > 0) {
            json.raw(",");
        }
        encode(json, items().at(i));
    }
    m_entriesJson = json.bytes();
}

/// `tell` says what changed, unless others have changed more.
void TranscriptionStore::saveAndTell(const std::function<void()> &tell)
{
    if (save()) {
        announce();
        return;
    }
    Q_EMIT itemsChanged();
    tell();
}
