// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <pulse/pulseaudio.h>

#include <functional>

/// Knows the server's default microphone at any time, by its notifications. Every call, and `changed`, with the main
/// loop's lock held.
class DefaultSource {
public:
    explicit DefaultSource(std::function<void()> changed);

    /// Follows the default source of a server that just became ready.
    void track(pa_context *context);

    /// The server is gone; nothing is known any more.
    void forget();

    /// False until the server's first answer.
    bool isKnown() const { return m_known; }

    /// Name of the source; where the default is the monitor of an output, which hears no voice, that of another one.
    /// Empty when there is no microphone at all.
    const QByteArray &name() const { return m_name; }

private:
    static void onEvent(pa_context *context, pa_subscription_event_type_t event, uint32_t index, void *self);
    static void onServer(pa_context *context, const pa_server_info *server, void *self);
    static void onSource(pa_context *context, const pa_source_info *source, int end, void *self);
    static void onCandidate(pa_context *context, const pa_source_info *source, int end, void *self);
    void ask(pa_context *context);
    void set(const QByteArray &name);

    std::function<void()> m_changed;
    QByteArray m_name;
    QByteArray m_candidate; // the first microphone of a list being received
    bool m_known = false;
};
