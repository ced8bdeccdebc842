// SPDX-License-Identifier: MIT
#include "platform/audio/PulseContext.h"

#include <mutex>
#include <stdexcept>
#include <utility>

PulseContext::PulseContext(QByteArray server)
    : m_server(std::move(server)), m_loop(pa_threaded_mainloop_new()), m_source([this] { postChanged(); })
{
    if (m_loop) {
        pa_threaded_mainloop_set_name(m_loop.get(), "quillo-audio"); // later it would name the calling thread
    }
    if (!m_loop || pa_threaded_mainloop_start(m_loop.get()) < 0) {
        throw std::runtime_error("no thread for the sound server's connection");
    }
}

PulseContext::~PulseContext()
{
    {
        const std::scoped_lock guard(*this);
        dropContext();
    }
    pa_threaded_mainloop_stop(m_loop.get());
}

void PulseContext::connectToServer()
{
    const std::scoped_lock guard(*this);
    if (m_context != nullptr && PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context))) {
        return;
    }
    dropContext();
    m_context = makeContext();
    if (m_context == nullptr) {
        return;
    }
    pa_context_set_state_callback(m_context, onState, this);
    // Starting a server is the desktop's business. A refused local socket fails inside this call.
    pa_context_connect(m_context, m_server.isEmpty() ? nullptr : m_server.constData(), PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

pa_context *PulseContext::makeContext() const
{
    const PulseProperties properties(pa_proplist_new());
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_NAME, "Quillo");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ID, "app.quillo.Quillo");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ICON_NAME, "app.quillo.Quillo");
    return pa_context_new_with_proplist(pa_threaded_mainloop_get_api(m_loop.get()), nullptr, properties.get());
}

void PulseContext::dropContext()
{
    if (m_context != nullptr) {
        pa_context_set_state_callback(m_context, nullptr, nullptr);
        pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
        pa_context_disconnect(m_context); // cancels the requests still unanswered
        pa_context_unref(m_context);
        m_context = nullptr;
    }
    m_source.forget();
}

void PulseContext::onState(pa_context *context, void *self)
{
    auto *pulse = static_cast<PulseContext *>(self);
    switch (pa_context_get_state(context)) {
    case PA_CONTEXT_READY:
        pulse->m_denied = false;
        pulse->m_source.track(context);
        break;
    case PA_CONTEXT_FAILED:
        pulse->m_denied = pa_context_errno(context) == PA_ERR_ACCESS;
        pulse->m_source.forget();
        break;
    default:
        return;
    }
    pulse->postChanged();
}

void PulseContext::postChanged()
{
    QMetaObject::invokeMethod(this, &PulseContext::changed, Qt::QueuedConnection);
}

PulseContext::Connection PulseContext::connection() const
{
    const std::scoped_lock guard(*this);
    const pa_context_state_t state = m_context == nullptr ? PA_CONTEXT_UNCONNECTED : pa_context_get_state(m_context);
    if (!PA_CONTEXT_IS_GOOD(state)) {
        return Connection::None;
    }
    return state == PA_CONTEXT_READY ? Connection::Ready : Connection::Connecting;
}

PulseContext::Source PulseContext::source() const
{
    const std::scoped_lock guard(*this);
    const Connection state = connection();
    if (state == Connection::None) {
        return Source::None;
    }
    if (state == Connection::Connecting || !m_source.isKnown()) {
        return Source::Pending;
    }
    return m_source.name().isEmpty() ? Source::None : Source::Present;
}

bool PulseContext::isDenied() const
{
    const std::scoped_lock guard(*this);
    return m_denied;
}
