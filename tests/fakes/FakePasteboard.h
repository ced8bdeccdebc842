// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pasteboard.h"

/// A pasteboard of many items in memory.
class FakePasteboard : public Pasteboard {
public:
    int64_t changeCount() override { return m_changeCount; }
    QCoro::Task<QList<PasteboardItem>> items() override { co_return content; }
    void clear() override { replace({}); }
    bool write(const QList<PasteboardItem> &items) override
    {
        replace(items);
        return true;
    }

    QString string() const
    {
        return content.isEmpty() ? QString() : QString::fromUtf8(content.first().value(plainString.toString()).bytes);
    }

    QList<PasteboardItem> content;

private:
    void replace(const QList<PasteboardItem> &items)
    {
        content = items;
        ++m_changeCount;
    }

    int64_t m_changeCount = 0;
};
