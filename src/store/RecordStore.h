// SPDX-License-Identifier: MIT
#pragma once

#include "store/FileStore.h"
#include "store/JsonRecords.h"

#include <functional>
#include <utility>
#include <vector>

/// A FileStore of one kind of record. A change is a function of the list, so that it can be done again on the list that
/// somebody else has written meanwhile.
template <typename Record> class RecordStore : public FileStore {
protected:
    using FileStore::FileStore;
    using Change = std::function<void(QList<Record> &)>;

    const QList<Record> &records() const { return m_records; }

    /// Does it in memory; `save` is to follow.
    void apply(Change change)
    {
        change(m_records);
        m_unsaved.push_back(std::move(change));
    }

    /// Nothing when the object is no such record.
    virtual std::optional<Record> decode(const JsonRecord &object) const = 0;

    /// What follows from another list.
    virtual void replaced() {}

private:
    bool adopt(QByteArrayView json) final
    {
        QList<Record> found;
        const bool isRead = readJsonRecords(json, [&](const JsonRecord &object) {
            auto record = decode(object);
            const bool isRecord = record.has_value(); // one that is none makes the whole file unreadable
            if (isRecord) {
                found.append(*std::move(record));
            }
            return isRecord;
        });
        if (!isRead) {
            return false;
        }
        for (const Change &change : m_unsaved) {
            change(found);
        }
        m_records = std::move(found);
        replaced();
        return true;
    }

    void forgetChanges() final { m_unsaved.clear(); }

    QList<Record> m_records;
    std::vector<Change> m_unsaved;
};
