// SPDX-License-Identifier: MIT
#include "platform/x11/connection/X11Connection.h"

#include <QAbstractEventDispatcher>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <algorithm>

X11Listener::X11Listener(X11Connection &connection) : m_connection(connection)
{
    m_connection.m_listeners.push_back(this);
}

X11Listener::~X11Listener()
{
    std::ranges::replace(m_connection.m_listeners, this, nullptr);
    if (m_connection.m_dispatchDepth == 0) {
        std::erase(m_connection.m_listeners, nullptr);
    }
}

std::unique_ptr<X11Connection> X11Connection::create(const QByteArray &displayName)
{
    int screenNumber = 0;
    Handle xcb(xcb_connect(displayName.isEmpty() ? nullptr : displayName.constData(), &screenNumber));
    if (xcb_connection_has_error(xcb.get()) != 0) {
        return nullptr;
    }
    return std::unique_ptr<X11Connection>(new X11Connection(std::move(xcb), screenNumber));
}

X11Connection::X11Connection(Handle xcb, int screenNumber)
    : m_xcb(std::move(xcb)),
      m_screenNumber(screenNumber),
      m_notifier(xcb_get_file_descriptor(m_xcb.get()), QSocketNotifier::Read)
{
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get()));
    for (int skipped = 0; skipped < screenNumber && screen.rem > 1; ++skipped) {
        xcb_screen_next(&screen);
    }
    m_root = screen.data->root;

    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    m_window = xcb_generate_id(m_xcb.get());
    xcb_create_window(m_xcb.get(), XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    negotiateExtensions();

    connect(&m_notifier, &QSocketNotifier::activated, this, &X11Connection::dispatch);
    // Events that were read while waiting for a reply no longer make the socket readable.
    auto *const loop = QAbstractEventDispatcher::instance();
    Q_ASSERT(loop);
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &X11Connection::scheduleArrived);
    connect(loop, &QAbstractEventDispatcher::awake, this, &X11Connection::scheduleArrived);
}

X11Connection::~X11Connection() = default;

void X11Connection::negotiateExtensions()
{
    auto *const c = m_xcb.get();
    const auto present = [c](xcb_extension_t &extension) {
        const auto *const data = xcb_get_extension_data(c, &extension);
        return data != nullptr && data->present != 0;
    };
    if (present(xcb_xkb_id)) {
        const XcbPtr<xcb_xkb_use_extension_reply_t> reply(
            xcb_xkb_use_extension_reply(c, xcb_xkb_use_extension(c, 1, 0), nullptr));
        m_extensions.xkb = reply && reply->supported != 0;
    }
    if (present(xcb_xfixes_id)) {
        const XcbPtr<xcb_xfixes_query_version_reply_t> reply(
            xcb_xfixes_query_version_reply(c, xcb_xfixes_query_version(c, 1, 0), nullptr));
        m_extensions.xfixes = reply != nullptr;
    }
    if (present(xcb_input_id)) {
        const XcbPtr<xcb_input_xi_query_version_reply_t> reply(
            xcb_input_xi_query_version_reply(c, xcb_input_xi_query_version(c, 2, 2), nullptr));
        m_extensions.rawKeys =
            reply && (reply->major_version > 2 || (reply->major_version == 2 && reply->minor_version >= 2));
    }
    m_extensions.test = present(xcb_test_id);
}

xcb_atom_t X11Connection::atom(const QByteArray &name)
{
    auto known = m_atoms.constFind(name);
    if (known == m_atoms.constEnd()) {
        const auto cookie = xcb_intern_atom(m_xcb.get(), 0, uint16_t(name.size()), name.constData());
        const XcbPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_xcb.get(), cookie, nullptr));
        if (!reply) {
            return XCB_ATOM_NONE;
        }
        known = m_atoms.insert(name, reply->atom);
    }
    return known.value();
}

QByteArray X11Connection::atomName(xcb_atom_t atom)
{
    const XcbPtr<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(m_xcb.get(), xcb_get_atom_name(m_xcb.get(), atom), nullptr));
    return reply ? QByteArray(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()))
                 : QByteArray();
}

xcb_timestamp_t X11Connection::serverTime()
{
    const auto property = atom("QUILLO_TIMESTAMP");
    xcb_change_property(m_xcb.get(), XCB_PROP_MODE_APPEND, m_window, property, XCB_ATOM_INTEGER, 8, 0, nullptr);
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    takeArrived([&](const xcb_generic_event_t &event) {
        const auto &change = eventAs<xcb_property_notify_event_t>(event);
        if (eventType(event) != XCB_PROPERTY_NOTIFY || change.window != m_window || change.atom != property) {
            return false;
        }
        time = change.time;
        return true;
    });
    return time;
}

void X11Connection::takeArrived(const std::function<bool(const xcb_generic_event_t &)> &take)
{
    const XcbPtr<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(m_xcb.get(), xcb_get_input_focus(m_xcb.get()), nullptr));
    while (Event event{xcb_poll_for_queued_event(m_xcb.get())}) {
        m_arrived.push_back(std::move(event));
    }
    std::erase_if(m_arrived, [&](const Event &event) { return take(*event); });
}

void X11Connection::scheduleArrived()
{
    while (Event event{xcb_poll_for_queued_event(m_xcb.get())}) {
        m_arrived.push_back(std::move(event));
    }
    const bool closing = m_notifier.isEnabled() && xcb_connection_has_error(m_xcb.get()) != 0;
    if ((m_arrived.empty() && !closing) || m_scheduled) {
        return;
    }
    m_scheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_scheduled = false;
            dispatch();
        },
        Qt::QueuedConnection);
}

void X11Connection::dispatch()
{
    while (Event event{xcb_poll_for_event(m_xcb.get())}) {
        m_arrived.push_back(std::move(event));
    }
    while (!m_arrived.empty()) {
        const Event event = std::move(m_arrived.front());
        m_arrived.pop_front();
        offer(*event);
    }
    xcb_flush(m_xcb.get());
    noticeClosing();
}

void X11Connection::offer(const xcb_generic_event_t &event)
{
    // An error answers a request nobody waits for, on a window of another client that went away meanwhile.
    if (event.response_type == 0) {
        return;
    }
    ++m_dispatchDepth;
    const auto count = m_listeners.size(); // one added meanwhile starts with the next event
    for (size_t index = 0; index < count; ++index) {
        if (auto *const listener = m_listeners[index]) {
            listener->handle(event);
        }
    }
    if (--m_dispatchDepth == 0) {
        std::erase(m_listeners, nullptr);
    }
}

void X11Connection::noticeClosing()
{
    if (xcb_connection_has_error(m_xcb.get()) != 0 && m_notifier.isEnabled()) {
        m_notifier.setEnabled(false); // a socket at its end stays readable for ever
        Q_EMIT closed();
    }
}
