// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/X11Pasteboard.h"

#include "platform/x11/clipboard/SelectionOwner.h"
#include "platform/x11/clipboard/SelectionReader.h"

#include <xcb/xfixes.h>

/// The selection owner in its thread.
class X11Pasteboard::Server {
public:
    static std::unique_ptr<Server> create(const QByteArray &displayName)
    {
        std::unique_ptr<Server> server(new Server);
        const bool connected = server->inThread([&] {
            server->m_connection = X11Connection::create(displayName);
            if (server->m_connection) {
                server->m_owner = std::make_unique<SelectionOwner>(*server->m_connection);
                server->m_window = server->m_owner->window();
            }
            return server->m_connection != nullptr;
        });
        return connected ? std::move(server) : nullptr;
    }

    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    ~Server()
    {
        inThread([this] {
            if (m_owner) {
                m_owner->save();
            }
            m_owner.reset();
            m_connection.reset();
            return true;
        });
        m_thread.quit();
        m_thread.wait();
    }

    xcb_window_t window() const { return m_window; }

    bool own(QList<SelectionOffer> offers)
    {
        return inThread([this, &offers] { return m_owner->own(std::move(offers)); });
    }

    int64_t readCount() const { return m_owner->readCount(); }

    void giveUp()
    {
        inThread([this] {
            m_owner->giveUp();
            return true;
        });
    }

private:
    Server()
    {
        m_context.moveToThread(&m_thread);
        m_thread.setObjectName(QStringLiteral("selection"));
        m_thread.start();
    }

    /// Runs there what takes a few round trips to the server, and waits for it.
    template <typename Function> bool inThread(Function function)
    {
        bool result = false;
        QMetaObject::invokeMethod(&m_context, function, Qt::BlockingQueuedConnection, &result);
        return result;
    }

    QThread m_thread;
    QObject m_context; // stands for the thread
    std::unique_ptr<X11Connection> m_connection;
    std::unique_ptr<SelectionOwner> m_owner;
    xcb_window_t m_window = noWindow;
};

/// Counts the changes of owner.
class X11Pasteboard::Counter final : private X11Listener {
public:
    Counter(X11Connection &connection, std::function<void()> changed)
        : X11Listener(connection),
          m_connection(connection),
          m_changed(std::move(changed)),
          m_clipboard(connection.atom("CLIPBOARD")),
          m_event(xcb_get_extension_data(connection.xcb(), &xcb_xfixes_id)->first_event + XCB_XFIXES_SELECTION_NOTIFY)
    {
        auto *const c = connection.xcb();
        xcb_xfixes_select_selection_input(c, connection.window(), m_clipboard,
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        const XcbPtr<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, m_clipboard), nullptr));
        m_owner = reply ? reply->owner : noWindow;
    }

    void refresh()
    {
        m_connection.takeArrived([this](const xcb_generic_event_t &event) { return count(event); });
    }

    int64_t changeCount() const { return m_count; }
    xcb_window_t owner() const { return m_owner; }

private:
    void handle(const xcb_generic_event_t &event) override { count(event); }

    bool count(const xcb_generic_event_t &event)
    {
        const auto &change = eventAs<xcb_xfixes_selection_notify_event_t>(event);
        if (eventType(event) != m_event || change.selection != m_clipboard) {
            return false;
        }
        ++m_count;
        m_owner = change.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER ? change.owner : noWindow;
        m_changed();
        return true;
    }

    X11Connection &m_connection;
    std::function<void()> m_changed;
    xcb_atom_t m_clipboard;
    int m_event;
    xcb_window_t m_owner = noWindow;
    int64_t m_count = 0;
};

std::unique_ptr<X11Pasteboard> X11Pasteboard::create(Clock &clock, const QByteArray &displayName)
{
    auto connection = X11Connection::create(displayName);
    if (!connection || !connection->extensions().xfixes) {
        return nullptr;
    }
    auto server = Server::create(displayName);
    return server ? std::unique_ptr<X11Pasteboard>(new X11Pasteboard(clock, std::move(connection), std::move(server)))
                  : nullptr;
}

X11Pasteboard::X11Pasteboard(Clock &clock, std::unique_ptr<X11Connection> connection, std::unique_ptr<Server> server)
    : m_clock(clock),
      m_connection(std::move(connection)),
      m_server(std::move(server)),
      m_counter(std::make_unique<Counter>(*m_connection, [this] { forgetWhatIsReplaced(); }))
{
    m_nextTurn.setSingleShot(true);
    m_nextTurn.callOnTimeout([this] { clearNow(); });
}

X11Pasteboard::~X11Pasteboard() = default;

/// What another program has replaced may be large.
void X11Pasteboard::forgetWhatIsReplaced()
{
    if (m_counter->owner() != m_server->window()) {
        m_written.clear();
    }
}

int64_t X11Pasteboard::readCount() const
{
    return m_server->readCount();
}

int64_t X11Pasteboard::changeCount()
{
    clearNow();
    m_counter->refresh();
    return m_counter->changeCount();
}

QCoro::Task<QList<PasteboardItem>> X11Pasteboard::items()
{
    clearNow();
    m_counter->refresh();
    QList<PasteboardItem> items;
    if (m_counter->owner() == noWindow) {
        co_return items;
    }
    if (m_counter->owner() == m_server->window()) {
        items.append(m_written);
        co_return items;
    }
    SelectionReader reader(*m_connection, m_clock, "CLIPBOARD");
    auto reading = reader.read();
    auto item = co_await reading;
    if (!item.isEmpty()) {
        items.append(std::move(item));
    }
    co_return items;
}

void X11Pasteboard::clear()
{
    m_clearPending = true;
    m_nextTurn.start(0);
}

void X11Pasteboard::clearNow()
{
    if (std::exchange(m_clearPending, false)) {
        m_server->giveUp();
        m_written.clear();
    }
}

bool X11Pasteboard::write(const QList<PasteboardItem> &items)
{
    auto item = mergedItem(items);
    if (item.isEmpty()) {
        clear();
        clearNow();
        return true;
    }
    m_clearPending = false;
    if (!m_server->own(selectionOffers(item))) {
        return false;
    }
    m_counter->refresh(); // past what others have written before
    m_written = std::move(item);
    return true;
}
