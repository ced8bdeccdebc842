// SPDX-License-Identifier: MIT
#include "app/start/TerminationSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

// Signal handlers reach nothing but globals. Signals are caught, not blocked: a blocked signal would stay blocked in
// every program started from here.
volatile std::sig_atomic_t wakeDescriptor = -1;

constexpr std::array caught{SIGINT, SIGTERM, SIGHUP};

void wake(int /*signal*/)
{
    const int before = errno; // of whatever was interrupted, which has yet to look at it
    const eventfd_t one = 1;
    // Nothing can be done here about a failing write.
    [[maybe_unused]] const auto written = ::write(wakeDescriptor, &one, sizeof one);
    errno = before;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> onSignal)
    : m_descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_notifier(std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read))
{
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, onSignal = std::move(onSignal)] {
                         eventfd_t count = 0;
                         ::eventfd_read(m_descriptor, &count);
                         onSignal();
                     });
    wakeDescriptor = m_descriptor;
    for (const int signal : caught) {
        if (std::signal(signal, wake) == SIG_IGN) {
            std::signal(signal, SIG_IGN); // whoever started the program wants that, as nohup does
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : caught) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
    m_notifier.reset();
    ::close(m_descriptor);
}
