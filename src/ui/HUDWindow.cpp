// SPDX-License-Identifier: MIT
#include "ui/HUDWindow.h"

#include "platform/StatusPanel.h"
#include "ui/HUDModel.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

using namespace Qt::StringLiterals;

// Generated with the QML module. Naming it keeps the linker from dropping the registration out of the static library.
extern void qml_register_types_Quillo(); // NOLINT(readability-identifier-naming)

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

} // namespace

std::unique_ptr<StatusPanel> makeHUDPanel(QQmlEngine &engine, StatusPanels &panels, HUDModel &model)
{
    [[maybe_unused]] void (*volatile const registration)() = &qml_register_types_Quillo;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    auto window = std::make_unique<QQuickView>(&engine, nullptr);
    window->setColor(Qt::transparent);
    window->setResizeMode(QQuickView::SizeRootObjectToView);
    window->resize(panelSize);
    window->setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
    window->setSource(QUrl(u"qrc:/qt/qml/Quillo/views/HUDView.qml"_s));
    QQuickItem *view = window->rootObject();
    auto panel = panels.adopt(std::move(window));
    new OutlineFollower(*view, *panel); // owned by the view, which the panel owns
    return panel;
}

#include "HUDWindow.moc"
