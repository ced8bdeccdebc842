// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pasteboard.h"

#include <coroutine>
#include <utility>

/// A pasteboard of many items in memory. It can be slow to read and refuse what is written.
class FakePasteboard : public Pasteboard {
public:
    int64_t changeCount() override { return m_changeCount; }
    int64_t readCount() const override { return m_readCount; }
    QCoro::Task<QList<PasteboardItem>> items() override
    {
        const auto read = content;
        co_await Answer{*this};
        co_return read;
    }
    void clear() override { replace({}); }
    bool write(const QList<PasteboardItem> &items) override
    {
        if (!refuses) {
            replace(items);
        }
        return !refuses;
    }

    QString string() const
    {
        return content.isEmpty() ? QString() : QString::fromUtf8(content.first().value(plainString.toString()).bytes);
    }

    /// Another program asks for the text, as one does in which something is pasted.
    QString read()
    {
        ++m_readCount;
        return string();
    }

    /// The owner answers those who wait for its content.
    void answer()
    {
        isSlow = false;
        std::exchange(m_waiting, {}).resume();
    }

    QList<PasteboardItem> content;
    bool refuses = false;
    /// The owner keeps silent until `answer`.
    bool isSlow = false;

private:
    struct Answer {
        FakePasteboard &pasteboard;

        bool await_ready() const { return !pasteboard.isSlow; }
        void await_suspend(std::coroutine_handle<> coroutine) const { pasteboard.m_waiting = coroutine; }
        void await_resume() const {}
    };

    void replace(const QList<PasteboardItem> &items)
    {
        content = items;
        ++m_changeCount;
        m_readCount = 0;
    }

    int64_t m_changeCount = 0;
    int64_t m_readCount = 0;
    std::coroutine_handle<> m_waiting;
};
