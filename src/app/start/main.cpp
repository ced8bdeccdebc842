// SPDX-License-Identifier: MIT
#include "app/start/QuilloApp.h"

int main(int argc, char *argv[])
{
    return QuilloApp::run(argc, argv);
}
