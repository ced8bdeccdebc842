// SPDX-License-Identifier: MIT
#include "e2e/PastingWindow.h"

#include "support/Await.h"

#include <QTimer>

#include <linux/input-event-codes.h>
#include <stdexcept>

PastingWindow::PastingWindow(const VirtualDisplay &display)
    : m_client(display),
      m_window(m_client.addWindow(QByteArrayLiteral("notes\0Notes\0"))),
      m_events(xcb_get_file_descriptor(m_client.xcb()), QSocketNotifier::Read)
{
    QObject::connect(&m_events, &QSocketNotifier::activated, &m_events, [this] { follow(); });
    show();
}

void PastingWindow::show()
{
    xcb_map_window(m_client.xcb(), m_window);
    if (!await([this] { return m_client.focusedWindow() == m_window; })) {
        throw std::runtime_error("the window manager gave the window no focus");
    }
    follow(); // what arrived while that was asked for no longer makes the socket readable
}

void PastingWindow::hide()
{
    xcb_unmap_window(m_client.xcb(), m_window);
    if (!await([this] { return m_client.focusedWindow() != m_window; })) {
        throw std::runtime_error("the window kept the focus");
    }
    follow();
}

void PastingWindow::follow()
{
    while (const XcbPtr<xcb_generic_event_t> event{xcb_poll_for_event(m_client.xcb())}) {
        if (eventType(*event) == XCB_SELECTION_NOTIFY) {
            note(eventAs<xcb_selection_notify_event_t>(*event));
        } else if (eventType(*event) == XCB_KEY_PRESS) {
            const auto &key = eventAs<xcb_key_press_event_t>(*event);
            constexpr auto chord = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
            if (key.detail == KEY_V + 8 && (key.state & chord) == XCB_MOD_MASK_CONTROL) {
                ++pastes;
                if (delay.count() >= 0) {
                    QTimer::singleShot(delay, &m_events, [this] { ask(); });
                }
            }
        }
    }
}

void PastingWindow::ask()
{
    xcb_convert_selection(m_client.xcb(), m_window, m_client.atom("CLIPBOARD"), m_client.atom("UTF8_STRING"),
                          m_client.atom("PASTED"), XCB_CURRENT_TIME);
    m_client.sync();
    follow();
}

void PastingWindow::note(const xcb_selection_notify_event_t &answer)
{
    constexpr uint32_t limit = 0x1000; // in units of four bytes
    auto *const c = m_client.xcb();
    const XcbPtr<xcb_get_property_reply_t> text(xcb_get_property_reply(
        c, xcb_get_property(c, 1, m_window, answer.property, XCB_GET_PROPERTY_TYPE_ANY, 0, limit), nullptr));
    pasted.append(text ? QString::fromUtf8(static_cast<const char *>(xcb_get_property_value(text.get())),
                                           xcb_get_property_value_length(text.get()))
                       : QString());
    QTimer::singleShot(0, &m_events, [this] { follow(); });
}
