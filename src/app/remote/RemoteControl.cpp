// SPDX-License-Identifier: MIT
#include "app/remote/RemoteControl.h"

#include "app/model/AppModel.h"
#include "app/remote/RemoteInterfaces.h"
#include "platform/Application.h"

#include <QDBusConnectionInterface>

using namespace Qt::StringLiterals;

namespace {

/// The dictation state as scripts read it.
QString stateName(const AppModel::State &state)
{
    switch (state.value) {
    case AppModel::State::Case::Recording:
        return u"recording"_s;
    case AppModel::State::Case::Transcribing:
        return u"transcribing"_s;
    case AppModel::State::Case::Idle:
        break;
    }
    return u"idle"_s;
}

} // namespace

RemoteControl::RemoteControl(QDBusConnection bus) : m_bus(std::move(bus)), m_interface(new RemoteInterface(*this))
{
    new ApplicationInterface(*this); // a child, like every adaptor
}

RemoteControl::~RemoteControl()
{
    if (m_bus.isConnected()) {
        m_bus.unregisterService(service());
        m_bus.unregisterObject(path());
    }
}

bool RemoteControl::isRunning(const QDBusConnection &bus)
{
    return bus.isConnected() && bus.interface()->isServiceRegistered(service()).value();
}

RemoteControl::Claim RemoteControl::claim()
{
    if (!m_bus.isConnected()) {
        return Claim::NoBus;
    }
    // The object first: whoever finds the name taken calls it at once.
    m_bus.registerObject(path(), this);
    const auto reply = m_bus.interface()->registerService(service(), QDBusConnectionInterface::DontQueueService,
                                                          QDBusConnectionInterface::DontAllowReplacement);
    const bool isFirst = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    return isFirst ? Claim::IsFirst : Claim::IsSecond;
}

void RemoteControl::setTarget(AppModel &model, Application &application)
{
    m_model = &model;
    m_actions = {
        {u"press"_s, [this] { press(); }},
        {u"release"_s, [this] { release(); }},
        {u"toggle"_s, [&model] { model.dictation().toggle(); }},
        {u"cancel"_s, [&model] { model.dictation().cancel(); }},
        {u"history"_s, [&model] { model.historyWindow().show(false); }},
        {u"edit-groups"_s, [&model] { model.historyWindow().show(true); }},
        {u"settings"_s, [&model] { model.settingsWindow().show(); }},
        {u"next-group"_s, [&model] { model.cycleGroup(true); }},
        {u"buy-tokens"_s, [&model] { model.buyTokens(); }},
        {u"quit"_s, [&application] { application.terminate(); }},
    };
    connect(&model, &AppModel::stateChanged, this, [this, &model] {
        if (model.state().value == AppModel::State::Case::Idle) {
            m_isHeld = false; // the dictation that the press began is over, however it ended
        }
        if (const QString state = stateName(model.state()); state != m_announced) {
            m_announced = state; // a recording that goes on hands-free is the same state to others
            Q_EMIT m_interface->StateChanged(state);
        }
    });
}

void RemoteControl::clearTarget()
{
    m_actions.clear();
    m_model = nullptr;
}

bool RemoteControl::perform(const QString &action)
{
    const auto found = m_actions.find(action);
    if (found == m_actions.end()) {
        return false;
    }
    found->second();
    return true;
}

void RemoteControl::applicationShouldHandleReopen()
{
    if (m_model != nullptr) {
        m_model->historyWindow().show(false);
    }
}

void RemoteControl::press()
{
    if (!m_isHeld) { // a second press is the key's auto-repeat
        m_isHeld = true;
        m_model->handle(ShortcutEvent::Pressed);
        m_isHeld = m_model->state().value != AppModel::State::Case::Idle; // a refused press holds nothing
    }
}

void RemoteControl::release()
{
    if (m_isHeld) {
        m_isHeld = false;
        m_model->handle(ShortcutEvent::Released);
    }
}

QVariantMap RemoteControl::status() const
{
    if (m_model == nullptr) {
        return {};
    }
    AppModel &model = *m_model;
    QVariantMap values{
        {u"state"_s, stateName(model.state())},
        {u"status"_s, model.statusText()},
        {RemoteControl::tr("unmetered"), model.isUnmetered()},
        {u"microphone"_s, model.microphone() == AudioRecorder::Permission::Granted},
        {u"accessibility"_s, model.isTrusted()},
        {u"consent"_s, model.hasConsent()},
        {u"historyVisible"_s, model.historyWindow().isVisible()},
        {u"transcripts"_s, static_cast<int>(model.store().items().size())},
    };
    if (const auto group = model.groups().group(model.groups().activeId())) {
        values.insert(u"group"_s, group->name);
    }
    if (const auto balance = model.balance()) {
        values.insert(u"balance"_s, QVariant::fromValue<qlonglong>(*balance));
    }
    for (const auto &[name, error] : {std::pair(u"shortcutError"_s, model.shortcutError()),
                                      std::pair(u"groupShortcutError"_s, model.groupShortcutError()),
                                      std::pair(u"historyShortcutError"_s, model.historyShortcutError())}) {
        if (error) {
            values.insert(name, *error);
        }
    }
    return values;
}

void RemoteControl::refuse(const QString &action)
{
    if (calledFromDBus()) {
        sendErrorReply(QDBusError::InvalidArgs, RemoteControl::tr("There is no action \"%1\".").arg(action));
    }
}
