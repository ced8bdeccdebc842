// SPDX-License-Identifier: MIT
#include "ui/WindowViews.h"

#include "ui/GroupCarouselModel.h"
#include "ui/GroupEditorModel.h"
#include "ui/HistoryModel.h"
#include "ui/HistoryWindow.h"
#include "ui/Paper.h"
#include "ui/ViewWindow.h"

#include <QQuickItem>
#include <QQuickView>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize historySize(460, 680);
constexpr QSize leastHistorySize(380, 440);
constexpr int settingsWidth = 500;
/// Kept free of the settings window on a low screen, for its title bar and the desktop's panels.
constexpr int screenMargin = 96;

/// Keeps the settings window as high as its content, or as the screen allows.
void followContent(QQuickView &view)
{
    const auto fit = [&view] {
        const int wanted = qCeil(view.rootObject()->implicitHeight());
        const int allowed = view.screen() ? view.screen()->availableSize().height() - screenMargin : wanted;
        const QSize size(settingsWidth, std::min(wanted, allowed));
        view.setMinimumSize(size);
        view.setMaximumSize(size);
        view.resize(size);
    };
    QObject::connect(view.rootObject(), &QQuickItem::implicitHeightChanged, &view, fit);
    QObject::connect(&view, &QWindow::screenChanged, &view, fit);
    fit();
}

} // namespace

std::unique_ptr<QWindow> makeHistoryWindow(QQmlEngine &engine, QObject &model, TranscriptionStore &store,
                                           GroupStore &groups, HistoryWindow &window, Pasteboard &pasteboard,
                                           Clock &clock)
{
    auto history = std::make_unique<HistoryModel>(store, groups, pasteboard, clock);
    auto carousel = std::make_unique<GroupCarouselModel>(groups);
    auto editor = std::make_unique<GroupEditorModel>(groups);
    auto view = makeViewWindow(engine, u"HistoryView"_s,
                               {{u"model"_s, QVariant::fromValue(&model)},
                                {u"history"_s, QVariant::fromValue(history.get())},
                                {u"carousel"_s, QVariant::fromValue(carousel.get())},
                                {u"editor"_s, QVariant::fromValue(editor.get())},
                                {u"historyWindow"_s, QVariant::fromValue<QObject *>(&window)}});
    history->setObjectName(u"history"_s);
    history.release()->setParent(view.get());
    carousel.release()->setParent(view.get());
    editor.release()->setParent(view.get());
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->setTitle(u"Quillo"_s);
    view->setColor(Paper::background());
    view->setMinimumSize(leastHistorySize);
    view->resize(historySize);
    return view;
}

std::unique_ptr<QWindow> makeSettingsWindow(QQmlEngine &engine, QObject &model, TranscriptionStore &store,
                                            GroupStore &groups, const PackagedInfo &info, KeyMonitors &keyMonitors,
                                            const SettingsModel::Shortcuts &shortcuts)
{
    auto settings = std::make_unique<SettingsModel>(store, groups, info, keyMonitors, shortcuts);
    auto view = makeViewWindow(
        engine, u"SettingsView"_s,
        {{u"model"_s, QVariant::fromValue(&model)}, {u"settings"_s, QVariant::fromValue(settings.get())}});
    settings.release()->setParent(view.get());
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->setTitle(u"Quillo Settings"_s);
    view->setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    followContent(*view);
    return view;
}
