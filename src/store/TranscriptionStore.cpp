// SPDX-License-Identifier: MIT
#include "store/TranscriptionStore.h"

#include "platform/Clock.h"
#include "store/JsonWriter.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::optional<Transcription> decode(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const auto id = stringAt(object, u"id"_s);
    const auto text = stringAt(object, u"text"_s);
    const auto timestamp = stringAt(object, u"timestamp"_s);
    const QJsonValue group = object.value(u"categoryId"_s);
    if (!id || !text || !timestamp || !(group.isUndefined() || group.isNull() || group.isString())) {
        return std::nullopt;
    }
    return Transcription{*id, *text, *timestamp, group.isString() ? std::optional(group.toString()) : std::nullopt};
}

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
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

} // namespace

TranscriptionStore::TranscriptionStore(Files &files, const Clock &clock)
    : m_clock(clock), m_file(files, u"transcriptions.json"_s)
{
    load();
}

QList<Transcription> TranscriptionStore::items(const std::optional<QString> &groupId) const
{
    if (!groupId) {
        return m_items;
    }
    QList<Transcription> filed;
    std::ranges::copy_if(m_items, std::back_inserter(filed),
                         [&](const Transcription &entry) { return entry.categoryId == groupId; });
    return filed;
}

void TranscriptionStore::add(const QString &text, const std::optional<QString> &groupId)
{
    const Transcription entry{newIdentifier(), text, timestamp(m_clock.now()), groupId};
    JsonWriter json;
    encode(json, entry);
    json.raw(m_items.isEmpty() ? "" : ",");
    m_items.prepend(entry);
    m_entriesJson.prepend(json.bytes());
    save();
    Q_EMIT added();
}

void TranscriptionStore::move(const QString &id, const std::optional<QString> &groupId)
{
    const auto entry = std::ranges::find(m_items, id, &Transcription::id);
    if (entry != m_items.end()) {
        entry->categoryId = groupId;
        const auto place = entry - m_items.begin();
        encodeAll();
        save();
        Q_EMIT changed(place);
    }
}

void TranscriptionStore::remove(const QString &id)
{
    const auto place = std::ranges::find(m_items, id, &Transcription::id) - m_items.begin();
    const auto count = m_items.removeIf([&](const Transcription &entry) { return entry.id == id; });
    encodeAll();
    save();
    if (count == 1) {
        Q_EMIT removed(place);
    } else {
        Q_EMIT reset();
    }
}

void TranscriptionStore::clear()
{
    m_items.clear();
    encodeAll();
    save();
    Q_EMIT reset();
}

void TranscriptionStore::load()
{
    const auto stored = m_file.read();
    if (!stored) {
        return;
    }
    QList<Transcription> items;
    items.reserve(stored->size());
    for (const auto &value : *stored) {
        auto entry = decode(value);
        if (!entry) {
            return; // one bad element makes the whole file unreadable: no guess at what the rest was meant to be
        }
        items.append(std::move(*entry));
    }
    m_items = std::move(items);
    encodeAll();
}

void TranscriptionStore::encodeAll()
{
    JsonWriter json;
    for (qsizetype i = 0; i < m_items.size(); ++i) {
        if (i > 0) {
            json.raw(",");
        }
        encode(json, m_items.at(i));
    }
    m_entriesJson = json.bytes();
}

void TranscriptionStore::save()
{
    m_file.write({"[", m_entriesJson, "]"});
    Q_EMIT itemsChanged();
}
