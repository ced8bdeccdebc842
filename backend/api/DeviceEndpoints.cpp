// SPDX-License-Identifier: MIT
#include "api/DeviceEndpoints.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestPlatform = 32;

} // namespace

DeviceEndpoints::DeviceEndpoints(StoreThreads &store, int registrationsPerHour)
    : m_store(store),
      m_authenticator(store),
      m_registrations(registrationsPerHour, std::chrono::seconds(3600 / std::max(registrationsPerHour, 1)))
{
}

void DeviceEndpoints::addTo(Router &router)
{
    router.add("POST", "/v1/devices", [this](const Request &request) { return registerDevice(request); });
    router.add("GET", "/v1/balance", [this](const Request &request) { return balance(request); });
}

net::awaitable<Reply> DeviceEndpoints::registerDevice(const Request &request)
{
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(request.body)).object();
    const auto platform = document[u"platform"_s].toString();
    if (platform.isEmpty() || platform.size() > longestPlatform || platform.contains(QChar::Null)) {
        throw Refusal::badRequest();
    }
    if (const auto delay = m_registrations.take(request.address, RateLimiter::Clock::now())) {
        throw Refusal::tooManyRegistrations().retryAfter(*delay);
    }
    const auto device = co_await m_store.run([&](Store &store) { return store.devices.add(platform); });
    co_return jsonReply({{u"deviceId"_s, device.deviceId},
                         {u"secret"_s, device.secret},
                         {u"freeGrantMissed"_s, device.freeGrantMissed}});
}

net::awaitable<Reply> DeviceEndpoints::balance(const Request &request) const
{
    const auto device = co_await m_authenticator.authenticate(request);
    co_return jsonReply({{u"balance"_s, device.balance}, {u"unmetered"_s, device.unmetered}});
}
