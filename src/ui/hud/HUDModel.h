// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <variant>

/// What the HUD shows.
namespace HUDPhase {
struct Recording {
    bool handsFree = false;
    bool operator==(const Recording &) const = default;
};
struct Transcribing {
    bool operator==(const Transcribing &) const = default;
};
struct Message {
    QString text;
    bool isError = false;
    bool operator==(const Message &) const = default;
};
struct Group {
    QString name;
    bool operator==(const Group &) const = default;
};
struct OutOfTokens {
    bool freeGrantMissed = false;
    bool operator==(const OutOfTokens &) const = default;
};
} // namespace HUDPhase

/// What the HUD's view observes. Main thread only.
class HUDModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    Q_PROPERTY(Kind kind READ kind NOTIFY phaseChanged)
    Q_PROPERTY(bool handsFree READ handsFree NOTIFY phaseChanged)
    Q_PROPERTY(QString text READ text NOTIFY phaseChanged)
    Q_PROPERTY(bool isError READ isError NOTIFY phaseChanged)
    Q_PROPERTY(bool freeGrantMissed READ freeGrantMissed NOTIFY phaseChanged)
    Q_PROPERTY(float level READ level NOTIFY levelChanged)

public:
    using Phase = std::variant<HUDPhase::Transcribing, HUDPhase::Recording, HUDPhase::Message, HUDPhase::Group,
                               HUDPhase::OutOfTokens>;

    /// The alternatives of Phase, in its order.
    enum class Kind { Transcribing, Recording, Message, Group, OutOfTokens };
    Q_ENUM(Kind)

    using QObject::QObject;

    const Phase &phase() const { return m_phase; }
    void setPhase(const Phase &phase);

    /// Microphone level from 0 to 1.
    float level() const { return m_level; }
    void setLevel(float level);

    void setOnBuyTokens(std::function<void()> action) { m_onBuyTokens = std::move(action); }
    Q_INVOKABLE void buyTokens() const;

    // The phase's payload as the view reads it; empty or false where the phase has none.
    Kind kind() const { return static_cast<Kind>(m_phase.index()); }
    bool handsFree() const;
    /// The message, or the group's name.
    QString text() const;
    bool isError() const;
    bool freeGrantMissed() const;

Q_SIGNALS:
    void phaseChanged();
    void levelChanged();

private:
    Phase m_phase;
    float m_level = 0;
    std::function<void()> m_onBuyTokens;
};
