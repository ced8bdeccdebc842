// SPDX-License-Identifier: MIT
#include "support/VirtualDisplay.h"

using namespace Qt::StringLiterals;

VirtualDisplay::VirtualDisplay(WindowManager windowManager, const QStringList &options)
    // -noreset: the server would start afresh whenever its last client leaves
    : m_server(u"Xvfb"_s, QStringList{u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x720x24"_s, u"-noreset"_s,
                                      u"-nolisten"_s, u"tcp"_s} +
                              options),
      m_name(':' + m_server.readLine().toLatin1())
{
    if (windowManager == WindowManager::Openbox) {
        m_windowManager = std::make_unique<ChildProcess>(u"openbox"_s, QStringList{u"--startup"_s, u"echo ready"_s},
                                                         environment()); // run once it manages windows
        m_windowManager->readLine();
    }
}

VirtualDisplay::~VirtualDisplay() = default;

QProcessEnvironment VirtualDisplay::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, QString::fromLatin1(m_name));
    environment.remove(u"WAYLAND_DISPLAY"_s);
    return environment;
}

void VirtualDisplay::use() const
{
    qputenv("DISPLAY", m_name);
}
