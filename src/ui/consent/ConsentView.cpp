// SPDX-License-Identifier: MIT
#include "ui/consent/ConsentView.h"

#include "ui/consent/DisclosureView.h"
#include "ui/windows/makeViewWindow.h"

#include <QQuickItem>
#include <QQuickView>

using namespace Qt::StringLiterals;

std::unique_ptr<QWindow> ConsentView::makeWindow(QQmlEngine &engine, DisclosureView &disclosure)
{
    auto window = makeViewWindow(engine, u"consent/DisclosureView"_s, {{u"model"_s, QVariant::fromValue(&disclosure)}});
    window->setTitle(u"Quillo"_s);
    window->setFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    window->rootObject()->forceActiveFocus();
    window->setMinimumSize(window->size());
    window->setMaximumSize(window->size());
    return window;
}
