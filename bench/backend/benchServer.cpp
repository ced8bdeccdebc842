// SPDX-License-Identifier: MIT
#include "app/Backend.h"

#include <QCoreApplication>

#include <iostream>

namespace {

/// Measures the server, not an engine.
class InstantEngine : public Engine {
public:
    int concurrency() const override { return 2; }
    QString transcribe(const Recording &) override { return QStringLiteral("hello world"); }
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions(Options::all());
    parser.process(application);
    Backend backend(settingsOf(Options(parser)), std::make_unique<InstantEngine>());
    std::cout << "listening on " << backend.url() << std::endl;
    backend.run(); // the engine never takes long
    return 0;
}
