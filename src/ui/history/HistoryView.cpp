// SPDX-License-Identifier: MIT
#include "ui/history/HistoryView.h"

#include "ui/groups/GroupCarouselModel.h"
#include "ui/groups/GroupEditorModel.h"
#include "ui/history/HistoryModel.h"
#include "ui/history/HistoryWindow.h"
#include "ui/models/BalanceProperties.h"
#include "ui/models/DictationProperties.h"
#include "ui/models/ShortcutProperties.h"
#include "ui/models/UnsentProperties.h"
#include "ui/style/Paper.h"
#include "ui/windows/makeViewWindow.h"

#include <QQuickView>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize historySize(460, 680);
constexpr QSize leastHistorySize(380, 440);

} // namespace

std::unique_ptr<QWindow> HistoryView::makeWindow(QQmlEngine &engine, const Properties &properties,
                                                 TranscriptionStore &store, GroupStore &groups, HistoryWindow &window,
                                                 Pasteboard &pasteboard, Clock &clock)
{
    auto history = std::make_unique<HistoryModel>(store, groups, pasteboard, clock);
    auto carousel = std::make_unique<GroupCarouselModel>(groups);
    auto editor = std::make_unique<GroupEditorModel>(groups);
    auto view = makeViewWindow(engine, u"history/HistoryView"_s,
                               {{u"dictation"_s, QVariant::fromValue(&properties.dictation)},
                                {u"shortcuts"_s, QVariant::fromValue(&properties.shortcuts)},
                                {u"balance"_s, QVariant::fromValue(&properties.balance)},
                                {u"unsent"_s, QVariant::fromValue(&properties.unsent)},
                                {u"history"_s, QVariant::fromValue(history.get())},
                                {u"carousel"_s, QVariant::fromValue(carousel.get())},
                                {u"editor"_s, QVariant::fromValue(editor.get())},
                                {u"historyWindow"_s, QVariant::fromValue(&window)}});
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
