// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionReader.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// Not content: what the protocol itself asks for, and requests that would make the owner do something.
constexpr std::array protocolTargets{"TARGETS", "MULTIPLE", "TIMESTAMP", "SAVE_TARGETS", "DELETE"};

bool isContent(const QByteArray &target)
{
    return !target.isEmpty() && !target.startsWith("INSERT_") &&
           std::ranges::none_of(protocolTargets, [&](const char *name) { return target == name; });
}

QByteArray bytesOf(const xcb_get_property_reply_t &property)
{
    return {static_cast<const char *>(xcb_get_property_value(&property)), xcb_get_property_value_length(&property)};
}

} // namespace

/// Waits until the owner has answered or sent a part, or a limit is passed.
struct SelectionReader::Arrival {
    SelectionReader &reader;

    bool await_ready() const { return reader.m_answer || reader.m_partArrived || reader.m_gaveUp; }
    void await_suspend(std::coroutine_handle<> coroutine)
    {
        reader.m_waiting = coroutine;
        reader.m_silence = reader.m_clock.after(silenceLimit, [this] {
            reader.m_gaveUp = true;
            reader.wake();
        });
    }
    void await_resume() const { reader.m_silence.reset(); }
};

SelectionReader::SelectionReader(X11Connection &connection, Clock &clock, const QByteArray &selection)
    : X11Listener(connection),
      m_connection(connection),
      m_clock(clock),
      m_selection(connection.atom(selection)),
      m_property(connection.atom("QUILLO_SELECTION")),
      m_window(xcb_generate_id(connection.xcb()))
{
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, m_window, connection.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
}

SelectionReader::~SelectionReader()
{
    xcb_destroy_window(m_connection.xcb(), m_window);
    m_connection.flush();
}

QCoro::Task<PasteboardItem> SelectionReader::read()
{
    m_total = m_clock.after(totalLimit, [this] {
        m_gaveUp = true;
        wake();
    });
    m_time = m_connection.serverTime();

    PasteboardItem item;
    auto listing = convert(m_connection.atom("TARGETS"));
    const auto targets = co_await listing;
    if (!targets) {
        co_return item;
    }
    for (const auto &[target, name] : dataTargets(*targets)) {
        auto conversion = convert(target);
        auto data = co_await conversion;
        if (m_gaveUp) {
            break;
        }
        if (data) {
            item.insert(QString::fromUtf8(name), *std::move(data));
        }
    }
    co_return item;
}

QCoro::Task<std::optional<PasteboardData>> SelectionReader::convert(xcb_atom_t target)
{
    m_answer.reset();
    m_partArrived = false;
    xcb_convert_selection(m_connection.xcb(), m_window, m_selection, target, m_property, m_time);
    m_connection.flush();
    Arrival arrival{*this};
    while (!m_answer && !m_gaveUp) {
        m_partArrived = false; // the property appears before the answer does
        co_await arrival;
    }
    if (m_gaveUp || m_answer == XCB_ATOM_NONE) {
        co_return std::nullopt;
    }
    m_answer.reset();
    m_partArrived = false; // taking the property is what asks for the first part
    const auto property = takeProperty();
    if (!property || property->type == XCB_ATOM_NONE) {
        co_return std::nullopt;
    }
    if (property->type != m_connection.atom("INCR")) {
        co_return describe(*property);
    }
    auto parts = collectParts();
    co_return co_await parts;
}

QCoro::Task<std::optional<PasteboardData>> SelectionReader::collectParts()
{
    std::optional<PasteboardData> data;
    Arrival arrival{*this};
    for (;;) {
        co_await arrival;
        if (m_gaveUp) {
            co_return std::nullopt; // half a picture is none
        }
        m_partArrived = false;
        const auto part = takeProperty();
        if (!part) {
            co_return std::nullopt;
        }
        if (part->type == XCB_ATOM_NONE) {
            continue; // taken together with the part before
        }
        if (part->value_len == 0) {
            co_return data ? data : describe(*part);
        }
        if (data) {
            data->bytes += bytesOf(*part);
        } else {
            data = describe(*part);
        }
    }
}

/// The property's value; reading deletes it, which tells the owner to go on.
XcbPtr<xcb_get_property_reply_t> SelectionReader::takeProperty()
{
    constexpr uint32_t everything = UINT32_MAX / 4; // in units of four bytes
    auto *const c = m_connection.xcb();
    return XcbPtr<xcb_get_property_reply_t>(xcb_get_property_reply(
        c, xcb_get_property(c, 1, m_window, m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, everything), nullptr));
}

std::vector<SelectionReader::Target> SelectionReader::dataTargets(const PasteboardData &targets)
{
    std::vector<Target> result;
    std::vector<xcb_atom_t> atoms(size_t(targets.bytes.size()) / sizeof(xcb_atom_t));
    std::memcpy(atoms.data(), targets.bytes.constData(), atoms.size() * sizeof(xcb_atom_t));
    for (const auto atom : atoms) {
        const auto name = m_connection.atomName(atom);
        if (isContent(name)) {
            result.emplace_back(atom, name);
        }
    }
    return result;
}

PasteboardData SelectionReader::describe(const xcb_get_property_reply_t &property)
{
    return {bytesOf(property), QString::fromUtf8(m_connection.atomName(property.type)), property.format};
}

void SelectionReader::handle(const xcb_generic_event_t &event)
{
    if (eventType(event) == XCB_SELECTION_NOTIFY) {
        const auto &answer = eventAs<xcb_selection_notify_event_t>(event);
        if (answer.requestor == m_window && answer.selection == m_selection) {
            m_answer = answer.property;
            wake();
        }
    } else if (eventType(event) == XCB_PROPERTY_NOTIFY) {
        const auto &change = eventAs<xcb_property_notify_event_t>(event);
        if (change.window == m_window && change.atom == m_property && change.state == XCB_PROPERTY_NEW_VALUE) {
            m_partArrived = true;
            wake();
        }
    }
}

/// The last thing its caller does: the coroutine may end and destroy the reader.
void SelectionReader::wake()
{
    if (const auto coroutine = std::exchange(m_waiting, {})) {
        coroutine.resume();
    }
}
