// SPDX-License-Identifier: MIT
#pragma once

#include "FakePlatform.h"
#include "support/HttpServer.h"

#include "app/model/AppModel.h"
#include "service/AIConsent.h"
#include "service/ApiClient.h"

#include <optional>

/// The controller on a desktop of fakes and a backend of the test's own, with consent given. The test makes it.
struct ModelOnFakes {
    ModelOnFakes()
    {
        fake.preferences.setString(QStringLiteral("apiURL"), server.url());
        consent.grant();
        server.onRequest = [this](const HttpServer::Request &request) {
            if (request.path == "/v1/devices") {
                return HttpServer::Response{200, R"({"deviceId":"d","secret":"s"})"};
            }
            if (request.path == "/v1/balance") {
                return HttpServer::Response{200, "{\"balance\":" + QByteArray::number(balance) + "}"};
            }
            if (request.path == "/v1/checkout/link") {
                return checkout;
            }
            return transcript;
        };
        client.emplace(fake.preferences, fake.packagedInfo, fake.secrets, consent, fake.clock);
    }

    FakePlatform fake;
    HttpServer server;
    AIConsent consent{fake.preferences, fake.clock};
    int64_t balance = 10;
    HttpServer::Response transcript{200, R"({"text":" Hello there.\n","balance":9})"};
    HttpServer::Response checkout{200, R"({"url":"https://pay.example/1"})"};
    std::optional<ApiClient> client;
    std::optional<AppModel> model;
};
