// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/clipboard/SelectionOffer.h"
#include "platform/x11/connection/X11Connection.h"

#include <QTimer>

#include <atomic>
#include <chrono>
#include <list>

/// Owns the clipboard selection and answers those who ask for it, data beyond `maximumPart` in parts (INCR). Works
/// wherever its connection does, on no thread's behalf but that one's.
class SelectionOwner final : public QObject, private X11Listener {
    Q_OBJECT

public:
    /// 256 KiB: far below what a server with big requests takes at once, and few turns for a large picture.
    static constexpr qsizetype maximumPart = 0x40000;

    /// A reader in parts that takes none for `patience` is given up.
    explicit SelectionOwner(X11Connection &connection, std::chrono::milliseconds patience = std::chrono::seconds(10));

    xcb_window_t window() const { return m_connection.window(); }

    /// Becomes the owner, or stays it with new content. False when the server refused.
    bool own(QList<SelectionOffer> offers);

    /// Leaves the selection without an owner, whoever owns it.
    void giveUp();

    /// How often the text has been asked for since `own`. Any thread.
    int64_t readCount() const { return m_readCount; }

    /// Has the clipboard manager take a copy of what is owned, which it offers in this program's place from then on.
    /// Returns when it has, when it refuses or is silent for `limit`, and at once where there is none.
    void save(std::chrono::milliseconds limit = std::chrono::seconds(2));

    /// Readers in parts that have not got everything yet.
    size_t transferCount() const { return m_transfers.size(); }

private:
    /// Data on its way to another client's window; it goes on when the selection has changed hands.
    struct Transfer {
        xcb_window_t requestor;
        xcb_atom_t property;
        SelectionOffer offer;
        qsizetype sent = 0;
        std::unique_ptr<QTimer> stall;
    };

    void handle(const xcb_generic_event_t &event) override;
    void answer(const xcb_selection_request_event_t &request);
    bool convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
    bool convertMultiple(xcb_window_t requestor, xcb_atom_t property);
    void sendTargets(xcb_window_t requestor, xcb_atom_t property);
    void send(xcb_window_t requestor, xcb_atom_t property, const SelectionOffer &offer);

    void begin(xcb_window_t requestor, xcb_atom_t property, const SelectionOffer &offer);
    void sendNext(const xcb_property_notify_event_t &taken);
    void end(std::list<Transfer>::iterator transfer);
    void dropRequestor(xcb_window_t requestor);

    X11Connection &m_connection;
    std::chrono::milliseconds m_patience;
    QList<SelectionOffer> m_offers;
    bool m_owned = false;
    std::atomic<int64_t> m_readCount = 0;
    bool m_isSaving = false;
    xcb_timestamp_t m_ownedSince = XCB_CURRENT_TIME;
    unsigned m_ownRequest = 0; // sequence number of the request that made us the owner
    std::list<Transfer> m_transfers;
};
