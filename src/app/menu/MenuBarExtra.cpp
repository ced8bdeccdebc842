// SPDX-License-Identifier: MIT
#include "app/menu/MenuBarExtra.h"

#include "app/menu/MenuBarIcon.h"
#include "app/menu/MenuContent.h"
#include "app/model/AppModel.h"
#include "platform/Platform.h"
#include "platform/StatusItem.h"

MenuBarExtra::MenuBarExtra(AppModel &model, const Platform &platform) : m_model(model), m_platform(platform)
{
    connect(&model, &AppModel::stateChanged, this, &MenuBarExtra::update);
    connect(&model, &AppModel::statusTextChanged, this, &MenuBarExtra::update);
    connect(&model, &AppModel::balanceChanged, this, &MenuBarExtra::update);
    connect(&model, &AppModel::shortcutsChanged, this, &MenuBarExtra::update);
    connect(&model, &AppModel::shortcutErrorsChanged, this, &MenuBarExtra::update);
    connect(&model, &AppModel::permissionsChanged, this, &MenuBarExtra::update);
    connect(&model.store(), &TranscriptionStore::itemsChanged, this, &MenuBarExtra::update);
    connect(&model.groups(), &GroupStore::groupsChanged, this, &MenuBarExtra::update);
    connect(&model.groups(), &GroupStore::activeIdChanged, this, &MenuBarExtra::update);
    connect(&model.historyWindow(), &HistoryWindow::isVisibleChanged, this, &MenuBarExtra::update);
    platform.statusItem.setActivationHandler([&model] { model.historyWindow().show(false); });
    refresh();
}

void MenuBarExtra::update()
{
    if (!m_isUpdating) {
        m_isUpdating = true;
        QMetaObject::invokeMethod(this, &MenuBarExtra::refresh, Qt::QueuedConnection);
    }
}

void MenuBarExtra::refresh()
{
    m_isUpdating = false;
    const MenuBarIcon icon = MenuBarIcon::of(m_model);
    m_platform.statusItem.setLabel(icon.symbol, icon.title);
    m_platform.statusItem.setMenu(menuContent(m_model, m_platform));
}
