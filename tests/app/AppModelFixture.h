// SPDX-License-Identifier: MIT
#pragma once

#include "ModelOnFakes.h"
#include "support/Await.h"
#include "support/Printing.h"

#include "platform/KeyCodes.h"

#include <QPointer>
#include <QWindow>

#include <gtest/gtest.h>

/// The controller on fakes, with windows that have nothing in them.
class AppModelFixture : public ::testing::Test, protected ModelOnFakes {
protected:
    using Case = AppModel::State::Case;

    static constexpr uint32_t controlOption = HotKeyModifier::control | HotKeyModifier::option;

    AppModelFixture() { make(); }

    /// Makes the controller, as a new start of the program does.
    void make()
    {
        model.emplace(fake.platform, *client, consent,
                      AppModel::Views{
                          .hud = [this](HUDModel &) { return std::make_unique<FakeStatusPanel>(panel); },
                          .history = [](AppModel &) { return std::make_unique<QWindow>(); },
                          .consent =
                              [this](DisclosureView &shown) {
                                  disclosure = &shown;
                                  return std::make_unique<QWindow>();
                              },
                          .settings = [](AppModel &) { return std::make_unique<QWindow>(); },
                      });
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

    /// Holds the shortcut for a second, speaking.
    void speak()
    {
        press();
        fake.clock.advance(std::chrono::seconds(1));
        release();
    }

    /// Speaks to a server that takes the recording and never answers.
    void speakToSilence()
    {
        const int before = server.count("/v1/transcribe");
        transcript.ending = HttpServer::Response::Ending::NeverReply;
        speak();
        ASSERT_TRUE(await([&] { return server.count("/v1/transcribe") > before; }));
    }

    bool awaitIdle()
    {
        return await([this] { return model->state().value == Case::Idle; });
    }

    /// Speaks, and waits for the reply and the paste.
    void dictate()
    {
        speak();
        ASSERT_TRUE(awaitIdle());
        fake.clock.advance(std::chrono::seconds(1));
    }

    HUDModel::Phase phase() { return model->hud().model().phase(); }
    static HUDModel::Phase message(const QString &text) { return HUDPhase::Message{text, false}; }
    static HUDModel::Phase error(const QString &text) { return HUDPhase::Message{text, true}; }

    PanelRecord panel;
    QPointer<DisclosureView> disclosure; ///< of the consent window last opened
};
