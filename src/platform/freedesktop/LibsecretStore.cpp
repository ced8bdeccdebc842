// SPDX-License-Identifier: MIT
#include "platform/freedesktop/LibsecretStore.h"

#include <QCoroFuture>
#include <QPromise>

#include <libsecret/secret.h>

#include <memory>
#include <utility>

namespace {

using Secret = std::optional<QByteArray>;

const SecretSchema *schema()
{
    static const SecretSchema *const schema =
        secret_schema_new("app.quillo.Credential", SECRET_SCHEMA_NONE, "service", SECRET_SCHEMA_ATTRIBUTE_STRING,
                          "account", SECRET_SCHEMA_ATTRIBUTE_STRING, nullptr);
    return schema;
}

/// Hands one answer of libsecret to the coroutine that waits for it; libsecret owns it until then.
template <typename T> class Answer {
public:
    Answer() { m_promise.start(); }
    QFuture<T> future() const { return m_promise.future(); }

    static void deliver(gpointer self, T value)
    {
        const std::unique_ptr<Answer> answer(static_cast<Answer *>(self));
        answer->m_promise.addResult(std::move(value));
        answer->m_promise.finish();
    }

private:
    QPromise<T> m_promise;
};

void retrieved(GObject *source, GAsyncResult *result, gpointer answer)
{
    g_autoptr(GError) error = nullptr;
    SecretValue *value = secret_retrievable_retrieve_secret_finish(SECRET_RETRIEVABLE(source), result, &error);
    Secret secret;
    if (value != nullptr) {
        gsize length = 0;
        const gchar *bytes = secret_value_get(value, &length);
        secret = QByteArray(bytes, qsizetype(length));
        secret_value_unref(value);
    }
    Answer<Secret>::deliver(answer, std::move(secret));
}

void found(GObject * /*source*/, GAsyncResult *result, gpointer answer)
{
    g_autoptr(GError) error = nullptr;
    GList *items = secret_password_search_finish(result, &error);
    if (items == nullptr) {
        Answer<Secret>::deliver(answer, std::nullopt);
        return;
    }
    secret_retrievable_retrieve_secret(SECRET_RETRIEVABLE(items->data), nullptr, retrieved, answer);
    g_list_free_full(items, g_object_unref);
}

/// The collection that new items go to. `Unknown`: there is no service to ask.
enum class Collection { Unlocked, Locked, Absent, Unknown };

void collectionFound(GObject * /*source*/, GAsyncResult *result, gpointer answer)
{
    g_autoptr(GError) error = nullptr;
    g_autoptr(SecretCollection) collection = secret_collection_for_alias_finish(result, &error);
    auto state = error == nullptr ? Collection::Absent : Collection::Unknown;
    if (collection != nullptr) {
        state = secret_collection_get_locked(collection) == TRUE ? Collection::Locked : Collection::Unlocked;
    }
    Answer<Collection>::deliver(answer, state);
}

QCoro::Task<Collection> defaultCollection()
{
    auto *answer = new Answer<Collection>;
    const QFuture<Collection> future = answer->future();
    secret_collection_for_alias(nullptr, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, nullptr, collectionFound,
                                answer);
    co_return co_await future;
}

void stored(GObject * /*source*/, GAsyncResult *result, gpointer answer)
{
    g_autoptr(GError) error = nullptr;
    Answer<bool>::deliver(answer, secret_password_store_finish(result, &error) == TRUE);
}

void cleared(GObject * /*source*/, GAsyncResult *result, gpointer answer)
{
    g_autoptr(GError) error = nullptr;
    secret_password_clear_finish(result, &error);
    Answer<bool>::deliver(answer, error == nullptr);
}

} // namespace

QCoro::Task<std::optional<QByteArray>> LibsecretStore::read(QString service, QString account)
{
    auto *answer = new Answer<Secret>;
    const QFuture<Secret> future = answer->future();
    // Unlike a look-up, a search leaves what is locked as it is.
    secret_password_search(schema(), SECRET_SEARCH_NONE, nullptr, found, answer, "service",
                           service.toUtf8().constData(), "account", account.toUtf8().constData(), nullptr);
    co_return co_await future;
}

QCoro::Task<bool> LibsecretStore::add(QString service, QString account, QByteArray secret)
{
    // To store in a locked collection is to ask for its password, in the middle of whatever the user is doing.
    const Collection collection = co_await defaultCollection();
    const bool isRefused = collection == Collection::Absent && std::exchange(m_hasAskedForCollection, true);
    if (collection == Collection::Locked || isRefused) {
        co_return false;
    }
    auto *answer = new Answer<bool>;
    const QFuture<bool> future = answer->future();
    SecretValue *value = secret_value_new(secret.constData(), secret.size(), "text/plain");
    secret_password_store_binary(schema(), SECRET_COLLECTION_DEFAULT, "Quillo device credential", value, nullptr,
                                 stored, answer, "service", service.toUtf8().constData(), "account",
                                 account.toUtf8().constData(), nullptr);
    secret_value_unref(value);
    co_return co_await future;
}

QCoro::Task<bool> LibsecretStore::remove(QString service, QString account)
{
    auto *answer = new Answer<bool>;
    const QFuture<bool> future = answer->future();
    secret_password_clear(schema(), nullptr, cleared, answer, "service", service.toUtf8().constData(), "account",
                          account.toUtf8().constData(), nullptr);
    co_return co_await future;
}
