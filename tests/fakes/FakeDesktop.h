// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"
#include "platform/Application.h"
#include "platform/LoginItem.h"
#include "platform/PackagedInfo.h"
#include "platform/Screens.h"
#include "platform/StatusItem.h"
#include "platform/StatusPanel.h"
#include "platform/Workspace.h"

#include <QMap>
#include <QWindow>

#include <optional>

class FakeAccessibility : public Accessibility {
public:
    bool isTrusted() const override { return trusted; }
    void promptForTrust() override { ++prompts; }

    bool trusted = true;
    int prompts = 0;
};

/// A desktop where a window that is shown gets the keyboard focus at once.
class FakeApplication : public Application {
public:
    void bringToFront(QWindow &window) override
    {
        window.show();
        front = &window;
    }
    void hide() override { ++hides; }
    void setActivationHandler(ActivationHandler handler) override { activated = std::move(handler); }
    void terminate() override { isTerminated = true; }

    QWindow *front = nullptr;
    int hides = 0;
    bool isTerminated = false;
    ActivationHandler activated;
};

class FakeLoginItem : public LoginItem {
public:
    Status status() const override { return current; }
    bool registerApp() override { return set(Status::Enabled); }
    bool unregisterApp() override { return set(Status::NotRegistered); }

    Status current = Status::NotRegistered;
    bool refuses = false;

private:
    bool set(Status status)
    {
        current = refuses ? current : status;
        return !refuses;
    }
};

class FakePackagedInfo : public PackagedInfo {
public:
    std::optional<QString> string(const QString &key) const override
    {
        return values.contains(key) ? std::optional(values.value(key)) : std::nullopt;
    }

    QMap<QString, QString> values;
};

class FakeScreens : public Screens {
public:
    QList<Screen> screens() const override { return all; }
    QPointF mouseLocation() const override { return pointer; }

    QList<Screen> all{{QRectF(0, 0, 1280, 720), QRectF(0, 24, 1280, 696)}};
    QPointF pointer{100, 100};
};

class FakeWorkspace : public Workspace {
public:
    bool open(const QUrl &url) override
    {
        opened.append(url);
        return hasBrowser;
    }
    bool openPrivacySettings(PrivacyPane pane) override
    {
        openedPane = pane;
        return hasPrivacySettings;
    }

    QList<QUrl> opened;
    std::optional<PrivacyPane> openedPane;
    bool hasPrivacySettings = true;
    bool hasBrowser = true;
};

class FakeStatusItem : public StatusItem {
public:
    void setLabel(const QString &newSymbol, const QString &newTitle) override
    {
        symbol = newSymbol;
        title = newTitle;
    }
    void setMenu(const QList<MenuItem> &items) override { menu = items; }
    void setActivationHandler(std::function<void()> handler) override { activated = std::move(handler); }

    QString symbol;
    QString title;
    QList<MenuItem> menu;
    std::function<void()> activated;
};

/// What became of a status panel; it outlives the panel.
struct PanelRecord {
    bool isVisible = false;
    bool ignoresMouse = false;
    QPointF origin;
    QRectF outline;
};

class FakeStatusPanel : public StatusPanel {
public:
    explicit FakeStatusPanel(PanelRecord &record) : m_record(record) {}

    QSizeF size() const override { return {280, 56}; }
    void setIgnoresMouseEvents(bool ignores) override { m_record.ignoresMouse = ignores; }
    void setFrameOrigin(QPointF origin) override { m_record.origin = origin; }
    void setOutline(const QRectF &capsule) override { m_record.outline = capsule; }
    void orderFrontRegardless() override { m_record.isVisible = true; }
    void orderOut() override { m_record.isVisible = false; }

private:
    PanelRecord &m_record;
};

class FakeStatusPanels : public StatusPanels {
public:
    std::unique_ptr<StatusPanel> adopt(std::unique_ptr<QWindow> content) override
    {
        adopted = std::move(content);
        return std::make_unique<FakeStatusPanel>(record);
    }

    std::unique_ptr<QWindow> adopted;
    PanelRecord record;
};
