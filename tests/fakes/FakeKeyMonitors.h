// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyMonitors.h"

#include <list>
#include <utility>

/// Hands the test's events to the monitors, as another program's or as our own.
class FakeKeyMonitors : public KeyMonitors {
public:
    [[nodiscard]] std::unique_ptr<KeyMonitor> addGlobal(Handler handler) override
    {
        return std::make_unique<Monitor>(global, std::move(handler));
    }
    [[nodiscard]] std::unique_ptr<KeyMonitor> addLocal(Handler handler) override
    {
        return std::make_unique<Monitor>(local, std::move(handler));
    }

    bool canSee(uint16_t keyCode) const override { return keyCode != unseen; }

    /// A key whose events never come.
    std::optional<uint16_t> unseen;

    /// An event while another program has the focus.
    void send(const KeyEvent &event) const
    {
        for (const Handler *handler : std::list(global)) {
            (*handler)(event);
        }
    }

    std::list<const Handler *> global;
    std::list<const Handler *> local;

private:
    struct Monitor : KeyMonitor {
        Monitor(std::list<const Handler *> &stream, Handler given) : monitors(stream), handler(std::move(given))
        {
            monitors.push_back(&handler);
        }
        Monitor(const Monitor &) = delete;
        Monitor &operator=(const Monitor &) = delete;
        ~Monitor() override { monitors.remove(&handler); }

        std::list<const Handler *> &monitors;
        Handler handler;
    };
};
