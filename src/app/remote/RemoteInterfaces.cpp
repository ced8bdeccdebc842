// SPDX-License-Identifier: MIT
#include "app/remote/RemoteInterfaces.h"

#include "app/remote/RemoteControl.h"

ApplicationInterface::ApplicationInterface(RemoteControl &control) : QDBusAbstractAdaptor(&control), m_control(control)
{
}

void ApplicationInterface::Activate(const QVariantMap & /*platformData*/)
{
    m_control.applicationShouldHandleReopen();
}

void ApplicationInterface::Open(const QStringList & /*uris*/, const QVariantMap & /*platformData*/)
{
    m_control.applicationShouldHandleReopen(); // there are no documents
}

void ApplicationInterface::ActivateAction(const QString &action, const QVariantList & /*parameters*/,
                                          const QVariantMap & /*platformData*/)
{
    if (!m_control.perform(action)) {
        m_control.refuse(action);
    }
}

RemoteInterface::RemoteInterface(RemoteControl &control) : QDBusAbstractAdaptor(&control), m_control(control) {}

QVariantMap RemoteInterface::GetStatus() const
{
    return m_control.status();
}
