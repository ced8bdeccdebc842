// SPDX-License-Identifier: MIT
#include "api/DeviceEndpoints.h"

#include "http/Network.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestPlatform = 32;

} // namespace

DeviceEndpoints::DeviceEndpoints(StoreThreads &store, Limits &limits, int registrationsPerHour)
    : m_store(store), m_authenticator(store), m_limits(limits), m_registrationsPerHour(registrationsPerHour)
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
    if (m_registrationsPerHour > 0) {
        constexpr Limits::Time hour = std::chrono::hours(1);
        const auto owner = "registration " + customerOf(request.address);
        if (const auto delay = co_await m_limits.take(owner, hour / m_registrationsPerHour, hour)) {
            throw Refusal::tooManyRegistrations().retryAfter(std::chrono::ceil<std::chrono::seconds>(*delay));
        }
    }
    const auto device = co_await m_store.run([&](Store &store) { return store.devices.add(platform); });
    auto reply = jsonReply({{u"deviceId"_s, device.deviceId},
                            {u"secret"_s, device.secret},
                            {u"freeGrantMissed"_s, device.freeGrantMissed}});
    reply.log = {{u"device"_s, device.deviceId}};
    co_return reply;
}

net::awaitable<Reply> DeviceEndpoints::balance(const Request &request) const
{
    const auto device = co_await m_authenticator.authenticate(request);
    auto reply = jsonReply({{u"balance"_s, device.balance}, {u"unmetered"_s, device.unmetered}});
    reply.log = {{u"device"_s, device.id}};
    co_return reply;
}
