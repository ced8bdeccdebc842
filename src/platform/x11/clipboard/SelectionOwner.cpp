// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionOwner.h"

#include <QDeadlineTimer>
#include <QEventLoop>

#include <algorithm>
#include <vector>

namespace {

int unitSize(const SelectionOffer &offer)
{
    return offer.format / 8;
}

void changeProperty(xcb_connection_t *c, xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                    const SelectionOffer &offer, qsizetype from, qsizetype length)
{
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, property, type, uint8_t(offer.format),
                        uint32_t(length / unitSize(offer)), offer.bytes.constData() + from);
}

void selectEvents(xcb_connection_t *c, xcb_window_t window, uint32_t events)
{
    xcb_change_window_attributes(c, window, XCB_CW_EVENT_MASK, &events);
}

} // namespace

SelectionOwner::SelectionOwner(X11Connection &connection, std::chrono::milliseconds patience)
    : X11Listener(connection), m_connection(connection), m_patience(patience)
{
}

bool SelectionOwner::own(QList<SelectionOffer> offers)
{
    auto *const c = m_connection.xcb();
    const auto clipboard = m_connection.atom("CLIPBOARD");
    const auto time = m_connection.serverTime();
    const auto request = xcb_set_selection_owner(c, window(), clipboard, time);
    const XcbPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, clipboard), nullptr));
    if (!reply || reply->owner != window()) {
        return false;
    }
    m_offers = std::move(offers);
    m_readCount = 0;
    m_ownedSince = time;
    m_ownRequest = request.sequence;
    m_owned = true;
    return true;
}

void SelectionOwner::giveUp()
{
    xcb_set_selection_owner(m_connection.xcb(), noWindow, m_connection.atom("CLIPBOARD"), m_connection.serverTime());
    m_connection.takeArrived([](const xcb_generic_event_t &) { return false; }); // done when the call returns
    m_offers.clear();
    m_owned = false;
}

void SelectionOwner::save(std::chrono::milliseconds limit)
{
    auto *const c = m_connection.xcb();
    const auto manager = m_connection.atom("CLIPBOARD_MANAGER");
    const XcbPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, manager), nullptr));
    if (!m_owned || !reply || reply->owner == noWindow) {
        return;
    }
    m_isSaving = true;
    xcb_convert_selection(c, window(), manager, m_connection.atom("SAVE_TARGETS"), XCB_ATOM_NONE,
                          m_connection.serverTime());
    m_connection.flush();
    const QDeadlineTimer deadline(limit);
    QEventLoop loop;                         // the manager reads what it saves
    QTimer::singleShot(limit, &loop, [] {}); // wakes the loop
    while (m_isSaving && !deadline.hasExpired()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void SelectionOwner::handle(const xcb_generic_event_t &event)
{
    switch (eventType(event)) {
    case XCB_SELECTION_REQUEST:
        answer(eventAs<xcb_selection_request_event_t>(event));
        break;
    case XCB_SELECTION_CLEAR:
        // One that was caused before we took the selection again says nothing about now.
        if (m_owned && eventAs<xcb_selection_clear_event_t>(event).owner == window() &&
            int(event.full_sequence - m_ownRequest) >= 0) {
            m_offers.clear();
            m_owned = false;
        }
        break;
    case XCB_SELECTION_NOTIFY:
        if (eventAs<xcb_selection_notify_event_t>(event).selection == m_connection.atom("CLIPBOARD_MANAGER")) {
            m_isSaving = false;
        }
        break;
    case XCB_PROPERTY_NOTIFY:
        sendNext(eventAs<xcb_property_notify_event_t>(event));
        break;
    case XCB_DESTROY_NOTIFY:
        dropRequestor(eventAs<xcb_destroy_notify_event_t>(event).window);
        break;
    default:
        break;
    }
}

void SelectionOwner::answer(const xcb_selection_request_event_t &request)
{
    if (request.owner != window() || request.selection != m_connection.atom("CLIPBOARD")) {
        return;
    }
    // Clients from before the present protocol name no property.
    auto property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    if (!m_owned || !convert(request.requestor, request.target, property)) {
        property = XCB_ATOM_NONE;
    }
    xcb_selection_notify_event_t notify{};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = property;
    xcb_send_event(m_connection.xcb(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    m_connection.flush();
}

bool SelectionOwner::convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property)
{
    if (target == m_connection.atom("TARGETS")) {
        sendTargets(requestor, property);
        return true;
    }
    if (target == m_connection.atom("TIMESTAMP")) {
        xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, requestor, property, XCB_ATOM_INTEGER, 32, 1,
                            &m_ownedSince);
        return true;
    }
    if (target == m_connection.atom("MULTIPLE")) {
        return convertMultiple(requestor, property);
    }
    const auto offer = std::ranges::find_if(
        m_offers, [&](const SelectionOffer &candidate) { return m_connection.atom(candidate.target) == target; });
    if (offer == m_offers.end()) {
        return false;
    }
    m_readCount += offer->isText ? 1 : 0;
    send(requestor, property, *offer);
    return true;
}

bool SelectionOwner::convertMultiple(xcb_window_t requestor, xcb_atom_t property)
{
    constexpr uint32_t limit = 4096; // in atoms
    auto *const c = m_connection.xcb();
    const auto pairType = m_connection.atom("ATOM_PAIR");
    const XcbPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c, xcb_get_property(c, 0, requestor, property, XCB_GET_PROPERTY_TYPE_ANY, 0, limit), nullptr));
    if (!reply || reply->format != 32) {
        return false;
    }
    const auto *const first = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    std::vector<xcb_atom_t> pairs(first, first + reply->value_len); // target, property, target, property, …
    for (size_t index = 0; index + 1 < pairs.size(); index += 2) {
        const bool nested = pairs[index] == m_connection.atom("MULTIPLE");
        if (nested || pairs[index + 1] == XCB_ATOM_NONE || !convert(requestor, pairs[index], pairs[index + 1])) {
            pairs[index + 1] = XCB_ATOM_NONE;
        }
    }
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, requestor, property, pairType, 32, uint32_t(pairs.size()),
                        pairs.data());
    return true;
}

void SelectionOwner::sendTargets(xcb_window_t requestor, xcb_atom_t property)
{
    std::vector<xcb_atom_t> targets;
    for (const char *const name : {"TARGETS", "MULTIPLE", "TIMESTAMP"}) {
        targets.push_back(m_connection.atom(name));
    }
    for (const auto &offer : m_offers) {
        targets.push_back(m_connection.atom(offer.target));
    }
    xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, requestor, property, XCB_ATOM_ATOM, 32,
                        uint32_t(targets.size()), targets.data());
}

void SelectionOwner::send(xcb_window_t requestor, xcb_atom_t property, const SelectionOffer &offer)
{
    if (offer.bytes.size() > maximumPart) {
        begin(requestor, property, offer);
    } else {
        changeProperty(m_connection.xcb(), requestor, property, m_connection.atom(offer.type), offer, 0,
                       offer.bytes.size());
    }
}

void SelectionOwner::begin(xcb_window_t requestor, xcb_atom_t property, const SelectionOffer &offer)
{
    auto *const c = m_connection.xcb();
    const auto earlier = std::ranges::find_if(m_transfers, [&](const Transfer &transfer) {
        return transfer.requestor == requestor && transfer.property == property;
    });
    if (earlier != m_transfers.end()) {
        end(earlier);
    }
    selectEvents(c, requestor, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const auto size = uint32_t(offer.bytes.size());
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, requestor, property, m_connection.atom("INCR"), 32, 1, &size);

    m_transfers.push_back({requestor, property, offer, 0, std::make_unique<QTimer>()});
    const auto transfer = std::prev(m_transfers.end());
    transfer->stall->setSingleShot(true);
    connect(transfer->stall.get(), &QTimer::timeout, this, [this, transfer] {
        transfer->stall.release()->deleteLater(); // its signal is being emitted
        end(transfer);
        m_connection.flush();
    });
    transfer->stall->start(m_patience);
}

/// The reader deletes the property when it has taken a part; an empty part tells it that it has everything.
void SelectionOwner::sendNext(const xcb_property_notify_event_t &taken)
{
    const auto transfer = std::ranges::find_if(m_transfers, [&](const Transfer &candidate) {
        return candidate.requestor == taken.window && candidate.property == taken.atom;
    });
    if (taken.state != XCB_PROPERTY_DELETE || transfer == m_transfers.end()) {
        return;
    }
    const auto length = std::min(maximumPart, transfer->offer.bytes.size() - transfer->sent);
    changeProperty(m_connection.xcb(), transfer->requestor, transfer->property, m_connection.atom(transfer->offer.type),
                   transfer->offer, transfer->sent, length);
    transfer->sent += length;
    if (length == 0) {
        end(transfer);
    } else {
        transfer->stall->start(m_patience);
    }
    m_connection.flush();
}

void SelectionOwner::end(std::list<Transfer>::iterator transfer)
{
    const auto requestor = transfer->requestor;
    m_transfers.erase(transfer);
    if (std::ranges::find(m_transfers, requestor, &Transfer::requestor) == m_transfers.end()) {
        selectEvents(m_connection.xcb(), requestor, XCB_EVENT_MASK_NO_EVENT);
    }
}

void SelectionOwner::dropRequestor(xcb_window_t requestor)
{
    std::erase_if(m_transfers, [requestor](const Transfer &transfer) { return transfer.requestor == requestor; });
}
