// SPDX-License-Identifier: MIT
#include "bench/Bench.h"
#include "e2e/Desktop.h"

#include <QCoreApplication>

#include <stdexcept>

// Whole dictations on a desktop of their own: what lies between the release and the wire, and between the reply and
// the paste keystroke.

using namespace Qt::StringLiterals;

namespace {

constexpr int dictations = 5;

void measure()
{
    const QByteArray earlier = "earlier";
    Desktop desktop;
    desktop.setClipboard(earlier);
    std::vector<double> finalising;
    std::vector<double> inserting;
    for (int i = 0; i < dictations; ++i) {
        const auto dictation = desktop.dictate(Speech::goForward());
        if (dictation.text.isEmpty() || !desktop.awaitClipboard(earlier)) {
            throw std::runtime_error("a dictation failed");
        }
        finalising.push_back(milliseconds(dictation.released, dictation.upload.firstRequestByte));
        inserting.push_back(milliseconds(dictation.upload.lastReplyByte, dictation.keystroke));
    }
    report({u"release to first byte on the wire, loopback"_s, u"ms"_s, median(finalising)});
    // The one mandated wait before the keystroke is for modifiers, and those are up long before the reply.
    report({u"reply to paste keystroke, history of a few entries"_s, u"ms"_s, median(inserting)});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runBench(measure);
}
