// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AppModel;
struct Platform;

/// Keeps the item in the panel and its menu true to what they show. Main thread only.
class MenuBarExtra : public QObject {
    Q_OBJECT

public:
    /// Both outlive the object.
    MenuBarExtra(AppModel &model, const Platform &platform);

private:
    /// Several changes of one moment are one update.
    void update();
    void refresh();

    AppModel &m_model;
    const Platform &m_platform;
    bool m_isUpdating = false;
};
