// SPDX-License-Identifier: MIT
#include "platform/freedesktop/LibsecretStore.h"

#include <QCoroFuture>
#include <QPromise>

#include <libsecret/secret.h>

#include <memory>

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

void found(GObject * /*source*/, GAsyncResult *result, gpointer answer)
{
    g_autoptr(GError) error = nullptr;
    SecretValue *value = secret_password_lookup_binary_finish(result, &error);
    Secret secret;
    if (value != nullptr) {
        gsize length = 0;
        const gchar *bytes = secret_value_get(value, &length);
        secret = QByteArray(bytes, qsizetype(length));
        secret_value_unref(value);
    }
    Answer<Secret>::deliver(answer, std::move(secret));
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
    secret_password_lookup(schema(), nullptr, found, answer, "service", service.toUtf8().constData(), "account",
                           account.toUtf8().constData(), nullptr);
    co_return co_await future;
}

QCoro::Task<bool> LibsecretStore::add(QString service, QString account, QByteArray secret)
{
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
