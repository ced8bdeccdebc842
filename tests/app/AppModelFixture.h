// SPDX-License-Identifier: MIT
#pragma once

#include "FakePlatform.h"
#include "support/Await.h"
#include "support/HttpServer.h"
#include "support/Printing.h"

#include "app/model/AppModel.h"
#include "platform/KeyCodes.h"
#include "service/AIConsent.h"

#include <QPointer>
#include <QWindow>

#include <gtest/gtest.h>

#include <optional>

/// The controller on a desktop of fakes and a backend of the test's own.
class AppModelFixture : public ::testing::Test {
protected:
    using Case = AppModel::State::Case;

    static constexpr uint32_t controlOption = HotKeyModifier::control | HotKeyModifier::option;

    AppModelFixture()
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
        model.emplace(fake.platform, *client, consent, views());
    }

    /// Panels and windows with nothing in them.
    AppModel::Views views()
    {
        return {
            .hud = [this](HUDModel &) { return std::make_unique<FakeStatusPanel>(panel); },
            .history = [](HistoryWindow &) { return std::make_unique<QWindow>(); },
            .consent =
                [this](DisclosureView &shown) {
                    disclosure = &shown;
                    return std::make_unique<QWindow>();
                },
            .settings = [] { return std::make_unique<QWindow>(); },
        };
    }

    /// The program as it is once it runs: shortcuts armed, the first balance known.
    void start()
    {
        model->start();
        if (consent.isCurrent()) {
            ASSERT_TRUE(await([this] { return model->balance().has_value(); }));
        }
    }

    void press() { ASSERT_TRUE(fake.hotKeys.press(KeyCode::space, controlOption)); }
    void release() { ASSERT_TRUE(fake.hotKeys.release(KeyCode::space, controlOption)); }
    bool escapeIsGrabbed() const { return fake.hotKeys.isRegistered(KeyCode::escape, 0); }

    /// Holds the shortcut for a second, speaking, and waits for the reply and the paste.
    void dictate()
    {
        press();
        fake.clock.advance(std::chrono::seconds(1));
        release();
        ASSERT_TRUE(await([this] { return model->state().value == Case::Idle; }));
        fake.clock.advance(std::chrono::seconds(1));
    }

    HUDModel::Phase phase() { return model->hud().model().phase(); }
    static HUDModel::Phase message(const QString &text) { return HUDPhase::Message{text, false}; }
    static HUDModel::Phase error(const QString &text) { return HUDPhase::Message{text, true}; }

    FakePlatform fake;
    HttpServer server;
    AIConsent consent{fake.preferences, fake.clock};
    PanelRecord panel;
    QPointer<DisclosureView> disclosure; ///< of the consent window last opened
    int64_t balance = 10;
    HttpServer::Response transcript{200, R"({"text":" Hello there.\n","balance":9})"};
    HttpServer::Response checkout{200, R"({"url":"https://pay.example/1"})"};
    std::optional<ApiClient> client;
    std::optional<AppModel> model;
};
