// SPDX-License-Identifier: MIT
#include "platform/freedesktop/LibsecretStore.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

#include <libsecret/secret.h>

namespace {

const SecretSchema *schema()
{
    static const SecretSchema *const schema =
        secret_schema_new("app.quillo.Credential", SECRET_SCHEMA_NONE, "service", SECRET_SCHEMA_ATTRIBUTE_STRING,
                          "account", SECRET_SCHEMA_ATTRIBUTE_STRING, nullptr);
    return schema;
}

/// libsecret keeps its session with the service and learns from GLib's event loop when that service is another one.
void startAnew()
{
    secret_service_disconnect();
}

std::optional<QByteArray> readNow(const QByteArray &service, const QByteArray &account, GCancellable *end)
{
    startAnew();
    g_autoptr(GError) error = nullptr;
    // Unlike a look-up, a search leaves what is locked as it is.
    GList *items = secret_password_search_sync(schema(), SECRET_SEARCH_NONE, end, &error, "service",
                                               service.constData(), "account", account.constData(), nullptr);
    g_autoptr(SecretValue) value =
        items == nullptr ? nullptr
                         : secret_retrievable_retrieve_secret_sync(SECRET_RETRIEVABLE(items->data), end, nullptr);
    g_list_free_full(items, g_object_unref);
    if (value == nullptr) {
        return std::nullopt;
    }
    gsize length = 0;
    const gchar *bytes = secret_value_get(value, &length);
    return QByteArray(bytes, qsizetype(length));
}

/// The collection that new items go to; null without one and without a service.
SecretCollection *defaultCollection(SecretService *service, GCancellable *end)
{
    return service == nullptr ? nullptr
                              : secret_collection_for_alias_sync(service, SECRET_COLLECTION_DEFAULT,
                                                                 SECRET_COLLECTION_NONE, end, nullptr);
}

bool addNow(const QByteArray &service, const QByteArray &account, const QByteArray &secret, GCancellable *end)
{
    startAnew();
    g_autoptr(SecretService) keyring = secret_service_get_sync(SECRET_SERVICE_NONE, end, nullptr);
    g_autoptr(SecretCollection) collection = defaultCollection(keyring, end);
    // To store where a collection is locked or missing is to ask for a password, in the middle of whatever is done.
    if (collection == nullptr || secret_collection_get_locked(collection) == TRUE) {
        return false;
    }
    g_autoptr(SecretValue) value = secret_value_new(secret.constData(), secret.size(), "text/plain");
    return secret_password_store_binary_sync(schema(), SECRET_COLLECTION_DEFAULT, "Quillo device credential", value,
                                             end, nullptr, "service", service.constData(), "account",
                                             account.constData(), nullptr) == TRUE;
}

bool unlockNow(GCancellable *end)
{
    startAnew();
    g_autoptr(SecretService) service = secret_service_get_sync(SECRET_SERVICE_NONE, end, nullptr);
    g_autoptr(SecretCollection) collection = defaultCollection(service, end);
    if (service == nullptr) {
        return false;
    }
    if (collection == nullptr) {
        g_autoptr(SecretCollection) made = secret_collection_create_sync(service, "Login", SECRET_COLLECTION_DEFAULT,
                                                                         SECRET_COLLECTION_CREATE_NONE, end, nullptr);
        return made != nullptr;
    }
    g_autoptr(GList) all = g_list_append(nullptr, collection);
    return secret_service_unlock_sync(service, all, end, nullptr, nullptr) == 1;
}

bool removeNow(const QByteArray &service, const QByteArray &account, GCancellable *end)
{
    startAnew();
    g_autoptr(GError) error = nullptr;
    secret_password_clear_sync(schema(), end, &error, "service", service.constData(), "account", account.constData(),
                               nullptr);
    return error == nullptr;
}

} // namespace

void LibsecretStore::Unref::operator()(GCancellable *cancellable) const
{
    g_object_unref(cancellable);
}

LibsecretStore::LibsecretStore() : m_end(g_cancellable_new()) {}

LibsecretStore::~LibsecretStore()
{
    g_cancellable_cancel(m_end.get());
    m_threads.waitForDone();
}

QCoro::Task<std::optional<QByteArray>> LibsecretStore::read(QString service, QString account)
{
    co_return co_await QtConcurrent::run(&m_threads, readNow, service.toUtf8(), account.toUtf8(), m_end.get());
}

QCoro::Task<bool> LibsecretStore::add(QString service, QString account, QByteArray secret)
{
    co_return co_await QtConcurrent::run(&m_threads, addNow, service.toUtf8(), account.toUtf8(), secret, m_end.get());
}

QCoro::Task<bool> LibsecretStore::unlock()
{
    co_return co_await QtConcurrent::run(&m_threads, unlockNow, m_end.get());
}

QCoro::Task<bool> LibsecretStore::remove(QString service, QString account)
{
    co_return co_await QtConcurrent::run(&m_threads, removeNow, service.toUtf8(), account.toUtf8(), m_end.get());
}
