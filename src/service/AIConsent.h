// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/LocalizedError.h"

#include <optional>

class Preferences;

/// The user's agreement that recordings are sent to OpenAI, a versioned record under the preference "aiConsent".
/// Nothing is cached: each read sees the store as it stands. Main thread only.
class AIConsent {
public:
    struct Record {
        /// Version of the disclosure the user agreed to.
        int64_t version = 0;
        Clock::Instant grantedAt;
    };

    /// The only version that counts; an agreement to another has to be given anew.
    static constexpr int64_t currentVersion = 1;

    AIConsent(Preferences &preferences, const Clock &clock) : m_preferences(preferences), m_clock(clock) {}

    /// Nothing when there is none, or what is stored is no record.
    std::optional<Record> record() const;
    bool isCurrent() const;

    void grant();
    void withdraw();

private:
    Preferences &m_preferences;
    const Clock &m_clock;
};

/// An upload was asked for without current consent.
class AIConsentError : public LocalizedError {
public:
    AIConsentError();
};
