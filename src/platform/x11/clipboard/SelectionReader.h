// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Pasteboard.h"
#include "platform/x11/connection/X11Connection.h"

#include <QCoroTask>

#include <coroutine>
#include <optional>
#include <vector>

/// One reading of all a selection offers. Each reading has a window of its own, so that several may run at once.
class SelectionReader final : private X11Listener {
public:
    /// 250 ms: an owner silent for longer is taken for hung; a busy one answers in some milliseconds.
    static constexpr Clock::Duration silenceLimit{250};
    /// 2 s: the longest the user is kept waiting, however much the owner has.
    static constexpr Clock::Duration totalLimit{2000};

    SelectionReader(X11Connection &connection, Clock &clock, const QByteArray &selection);
    ~SelectionReader() override;

    /// Every target with its data, one after the other; what was read until then when a limit is passed. To be called
    /// once. The reader outlives the coroutine.
    QCoro::Task<PasteboardItem> read();

private:
    struct Arrival;
    using Target = std::pair<xcb_atom_t, QByteArray>;

    void handle(const xcb_generic_event_t &event) override;
    void wake();

    QCoro::Task<std::optional<PasteboardData>> convert(xcb_atom_t target);
    QCoro::Task<std::optional<PasteboardData>> collectParts();
    XcbPtr<xcb_get_property_reply_t> takeProperty();
    std::vector<Target> dataTargets(const PasteboardData &targets);
    PasteboardData describe(const xcb_get_property_reply_t &property);

    X11Connection &m_connection;
    Clock &m_clock;
    xcb_atom_t m_selection;
    xcb_atom_t m_property;
    xcb_window_t m_window;
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;

    std::optional<xcb_atom_t> m_answer; // the property of the owner's answer, none when it refused
    bool m_partArrived = false;
    bool m_gaveUp = false; // a limit was passed
    std::unique_ptr<Clock::Timer> m_silence;
    std::unique_ptr<Clock::Timer> m_total;
    std::coroutine_handle<> m_waiting;
};
