// SPDX-License-Identifier: MIT
#include "platform/audio/DefaultSource.h"

#include "platform/audio/PulseRelease.h"

#include <utility>

DefaultSource::DefaultSource(std::function<void()> changed) : m_changed(std::move(changed)) {}

void DefaultSource::track(pa_context *context)
{
    constexpr auto events = pa_subscription_mask_t(PA_SUBSCRIPTION_MASK_SERVER | PA_SUBSCRIPTION_MASK_SOURCE);
    pa_context_set_subscribe_callback(context, onEvent, this);
    release(pa_context_subscribe(context, events, nullptr, nullptr));
    ask(context);
}

void DefaultSource::forget()
{
    m_known = false;
    m_name.clear();
}

void DefaultSource::onEvent(pa_context *context, pa_subscription_event_type_t event, uint32_t /*index*/, void *self)
{
    // Sources change all the time (volume, running or suspended) and stay what they are.
    const auto facility = event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
    const auto type = event & PA_SUBSCRIPTION_EVENT_TYPE_MASK;
    if (facility != PA_SUBSCRIPTION_EVENT_SOURCE || type != PA_SUBSCRIPTION_EVENT_CHANGE) {
        static_cast<DefaultSource *>(self)->ask(context);
    }
}

void DefaultSource::ask(pa_context *context)
{
    release(pa_context_get_server_info(context, onServer, this));
}

void DefaultSource::onServer(pa_context *context, const pa_server_info *server, void *self)
{
    if (server == nullptr || server->default_source_name == nullptr || *server->default_source_name == '\0') {
        onSource(context, nullptr, -1, self);
        return;
    }
    release(pa_context_get_source_info_by_name(context, server->default_source_name, onSource, self));
}

void DefaultSource::onSource(pa_context *context, const pa_source_info *source, int end, void *self)
{
    if (source != nullptr && source->monitor_of_sink == PA_INVALID_INDEX) {
        static_cast<DefaultSource *>(self)->set(source->name);
    } else if (source != nullptr || end < 0) { // a monitor, or no such source
        static_cast<DefaultSource *>(self)->m_candidate.clear();
        release(pa_context_get_source_info_list(context, onCandidate, self));
    }
}

/// A server whose default went away falls back to the monitor of an output, and may stay there though a microphone has
/// come: then any microphone is better.
void DefaultSource::onCandidate(pa_context * /*context*/, const pa_source_info *source, int end, void *self)
{
    auto &candidate = static_cast<DefaultSource *>(self)->m_candidate;
    if (end != 0) {
        static_cast<DefaultSource *>(self)->set(candidate);
    } else if (candidate.isEmpty() && source->monitor_of_sink == PA_INVALID_INDEX) {
        candidate = source->name;
    }
}

void DefaultSource::set(const QByteArray &name)
{
    if (!m_known || m_name != name) {
        m_known = true;
        m_name = name;
        m_changed();
    }
}
