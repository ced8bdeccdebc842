// SPDX-License-Identifier: MIT
#include "bench/Bench.h"
#include "bench/ProcessUsage.h"
#include "e2e/Desktop.h"
#include "support/Await.h"

#include <QCoreApplication>

#include <stdexcept>

// The program at rest: how fast it is there, and what it costs to have it running. The reference is a graphical program
// that does nothing.

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int starts = 9;
constexpr auto settling = 35s; // the thread of the first request ends after 30 s idle and takes its counts along
constexpr auto observed = 20s;
constexpr auto firstRequest = "GET /v1/balance";

double startQuillo(const Desktop &desktop, std::unique_ptr<ChildProcess> &quillo)
{
    const int before = desktop.tap().count(firstRequest);
    const Instant from = std::chrono::steady_clock::now();
    quillo = std::make_unique<ChildProcess>(QStringLiteral(QUILLO_PROGRAM), QStringList{}, desktop.environment());
    if (!await([&] { return desktop.tap().count(firstRequest) > before; })) {
        throw std::runtime_error("quillo did not ask for the balance");
    }
    return milliseconds(from, desktop.tap().last(firstRequest)->firstRequestByte);
}

double startBare(const Desktop &desktop, std::unique_ptr<ChildProcess> &bare)
{
    const Instant from = std::chrono::steady_clock::now();
    bare = std::make_unique<ChildProcess>(QStringLiteral(BARE_PROGRAM), QStringList{}, desktop.environment());
    bare->readLine();
    return milliseconds(from, std::chrono::steady_clock::now());
}

void measure()
{
    Desktop desktop;
    desktop.quillo().terminate(); // it has made the account that the starts to be measured find
    std::unique_ptr<ChildProcess> quillo;
    std::unique_ptr<ChildProcess> bare;
    std::vector<double> starting;
    std::vector<double> bareStarting;
    for (int i = 0; i < starts; ++i) {
        quillo.reset();
        starting.push_back(startQuillo(desktop, quillo));
        bare.reset();
        bareStarting.push_back(startBare(desktop, bare));
    }
    pause(settling);

    const ProcessUsage before = ProcessUsage::of(quillo->pid());
    pause(observed);
    const ProcessUsage after = ProcessUsage::of(quillo->pid());
    const ProcessUsage idle = ProcessUsage::of(bare->pid());
    const double perMinute = std::chrono::duration<double>(1min) / observed;

    report({u"program start to shortcuts armed, upper bound: to the first request, which follows "
            u"(reference: bare Qt GUI program to its event loop)"_s,
            u"ms"_s, median(starting), median(bareStarting)});
    report({u"idle RSS (reference: bare Qt GUI program)"_s, u"MiB"_s, after.rssMebibytes, idle.rssMebibytes});
    report({u"idle PSS (reference: bare Qt GUI program)"_s, u"MiB"_s, after.pssMebibytes, idle.pssMebibytes});
    report({u"idle processor time per minute"_s, u"ms"_s,
            std::chrono::duration<double, std::milli>(after.processorTime - before.processorTime).count() * perMinute});
    report({u"idle wake-ups per minute"_s, u"1/min"_s, double(after.waits - before.waits) * perMinute});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runBench(measure);
}
