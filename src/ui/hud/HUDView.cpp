// SPDX-License-Identifier: MIT
#include "ui/hud/HUDView.h"

#include "platform/StatusPanel.h"
#include "ui/hud/HUDModel.h"
#include "ui/windows/makeViewWindow.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickView>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize panelSize(280, 56);

/// Keeps the panel's outline the one of the capsule that the view draws.
class OutlineFollower : public QObject {
    Q_OBJECT

public:
    OutlineFollower(QQuickItem &view, StatusPanel &panel) : QObject(&view), m_view(view), m_panel(panel)
    {
        connect(&view, SIGNAL(outlineChanged()), this, SLOT(follow()));
        follow();
    }

private Q_SLOTS:
    void follow() { m_panel.setOutline(m_view.property("outline").toRectF()); }

private:
    QQuickItem &m_view;
    StatusPanel &m_panel;
};

/// Tells a screen reader of each phase that comes on screen. The panel never has the focus, so a change of its name
/// alone is passed over; a notification that appears is read, and the same one again when it appears again.
void announce(QQuickView &window, HUDModel &model)
{
    const auto tell = [&window] {
        if (window.isVisible()) {
            QAccessibleEvent event(window.rootObject(), QAccessible::ObjectShow);
            QAccessible::updateAccessibility(&event);
        }
    };
    QObject::connect(&window, &QWindow::visibleChanged, &window, tell);
    QObject::connect(&model, &HUDModel::phaseChanged, &window, tell);
}

} // namespace

std::unique_ptr<StatusPanel> HUDView::makePanel(QQmlEngine &engine, StatusPanels &panels, HUDModel &model)
{
    auto window = makeViewWindow(engine, u"hud/HUDView"_s, {{u"model"_s, QVariant::fromValue(&model)}});
    window->setTitle(u"Quillo"_s);
    window->setColor(Qt::transparent);
    window->setResizeMode(QQuickView::SizeRootObjectToView);
    window->resize(panelSize);
    announce(*window, model);
    QQuickItem *view = window->rootObject();
    auto panel = panels.adopt(std::move(window));
    new OutlineFollower(*view, *panel); // owned by the view, which the panel owns
    return panel;
}

#include "HUDView.moc"
