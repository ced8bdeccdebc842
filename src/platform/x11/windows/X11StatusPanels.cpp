// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11StatusPanels.h"

#include "platform/x11/windows/X11StatusPanel.h"

#include <QWindow>

std::unique_ptr<StatusPanel> X11StatusPanels::adopt(std::unique_ptr<QWindow> content)
{
    return std::make_unique<X11StatusPanel>(m_connection, std::move(content));
}
