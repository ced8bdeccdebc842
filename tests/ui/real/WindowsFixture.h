// SPDX-License-Identifier: MIT
#pragma once

#include "ui/Windows.h"

#include "ViewDriver.h"
#include "platform/x11/X11Backend.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "support/Printing.h"
#include "support/VirtualDisplay.h"

#include <gtest/gtest.h>

/// The windows on a real display, one for the whole program: an application has one display.
class WindowsTest : public ::testing::Test {
public:
    /// The display that the program runs on.
    static const VirtualDisplay *display;

protected:
    explicit WindowsTest(bool hasRealKeys = false)
        : windows{{.hotKeys = hasRealKeys ? &backend->hotKeys() : nullptr,
                   .keyMonitors = hasRealKeys ? &backend->keyMonitors() : nullptr,
                   .pasteboard = &backend->pasteboard()}}
    {
    }

    ViewDriver openHistory(bool editingGroups = false)
    {
        windows.history->show(editingGroups);
        return ViewDriver(*windows.historyView);
    }

    ViewDriver openSettings()
    {
        windows.settings->show();
        return ViewDriver(*windows.settingsView);
    }

    static QString clipboard()
    {
        return QString::fromUtf8(run(QStringLiteral("xclip"),
                                     {QStringLiteral("-o"), QStringLiteral("-selection"), QStringLiteral("clipboard")},
                                     display->environment()));
    }

    QStringList groupNames() const
    {
        QStringList names;
        for (const DictationGroup &group : windows.groups.groups()) {
            names.append(group.name);
        }
        return names;
    }

    FakeClock clock;
    QString whyNot;
    std::unique_ptr<X11Backend> backend = X11Backend::create(clock, TerminalClasses::defaults(), &whyNot);
    Windows windows;
};
