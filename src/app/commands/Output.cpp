// SPDX-License-Identifier: MIT
#include "app/commands/Output.h"

#include <cstdio>
#include <unistd.h>

void Output::print(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

int Output::fail(const QString &sentence, int status)
{
    progress({});
    std::fprintf(stderr, "quillo: %s\n", sentence.toUtf8().constData());
    return status;
}

void Output::progress(const QString &line)
{
    static const bool isTerminal = isatty(STDERR_FILENO) == 1;
    if (isTerminal) {
        constexpr auto clearLine = "\r\033[K";
        std::fprintf(stderr, "%s%s", clearLine, line.toUtf8().constData());
        std::fflush(stderr);
    }
}
