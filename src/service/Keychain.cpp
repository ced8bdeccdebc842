// SPDX-License-Identifier: MIT
#include "service/Keychain.h"

#include <QStringDecoder>

namespace {

/// The name all items are kept under.
QString serviceName()
{
    return QStringLiteral("app.quillo.Quillo");
}

} // namespace

QCoro::Task<std::optional<QString>> Keychain::read(QString account)
{
    const QString service = serviceName();
    const std::optional<QByteArray> secret = co_await m_store.read(service, account);
    if (!secret) {
        co_return std::nullopt;
    }
    QStringDecoder fromUtf8(QStringDecoder::Utf8);
    const QString text = fromUtf8(*secret);
    co_return fromUtf8.hasError() ? std::nullopt : std::optional(text);
}

QCoro::Task<bool> Keychain::write(QString account, QString value)
{
    const QString service = serviceName();
    const QByteArray secret = value.toUtf8();
    co_await m_store.remove(service, account);
    co_return co_await m_store.add(service, account, secret);
}

QCoro::Task<void> Keychain::remove(QString account)
{
    const QString service = serviceName();
    co_await m_store.remove(service, account);
}
