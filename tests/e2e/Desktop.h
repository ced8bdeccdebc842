// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/TestClient.h"
#include "support/ChildProcess.h"
#include "support/HttpServer.h"
#include "support/Session.h"
#include "support/SoundServer.h"
#include "support/VirtualDisplay.h"
#include "support/WireTap.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>

/// A spoken recording that comes with the operating system.
struct Speech {
    QString rawFile;
    /// Samples per second; mono, signed 16 bits.
    int rate;

    /// "go forward ten meters"
    static Speech goForward();
};

struct DesktopOptions {
    /// On record before the program starts.
    bool hasConsent = true;
    /// In front, with the focus.
    bool hasEditor = true;
    bool isStarted = true;
    QStringList serverOptions = {};
    /// Takes the place of quillo-backend, which then does not run; it outlives the desktop.
    const HttpServer *server = nullptr;
};

/// A whole desktop for one run: session, screen, virtual microphone, keyring, the server, the program, and a text
/// editor. Everything is its own and ends with it; what fails throws std::runtime_error.
class Desktop {
public:
    using Instant = std::chrono::steady_clock::time_point;

    /// What happened in one dictation, as seen from outside.
    struct Dictation {
        Instant released;
        /// The upload on the wire.
        WireTap::Exchange upload;
        /// When the paste keystroke was posted, and when the editor next drew text.
        Instant keystroke;
        Instant onScreen;
        /// What the server answered.
        QString text;
    };

    /// What one command of the program came to.
    struct Outcome {
        int status = -1;
        QString output;
        QString errors;

        bool operator==(const Outcome &) const = default;
    };

    /// A program that is started has its shortcuts armed when the constructor returns.
    explicit Desktop(const DesktopOptions &options = {});

    /// Starts the program and waits until its shortcuts are armed and, without consent, its question is asked.
    void start();
    /// A second process of the program, as `quillo ARGUMENTS` in a terminal; runs to its end.
    Outcome command(const QStringList &arguments, const QByteArray &input = {}) const;
    /// What `quillo status --json` prints; empty when the program isn't running.
    QJsonObject status() const;
    /// Waits until the status has the value.
    bool awaitStatus(const QString &key, const QJsonValue &value) const;

    /// Holds the dictation shortcut while the recording is played and lets go. The two functions run while the program
    /// listens and while it transcribes; what they take is not part of any figure but their own.
    Dictation dictate(const Speech &speech, const std::function<void()> &whileListening = {},
                      const std::function<void()> &whileTranscribing = {});

    /// What stands in the editor, as it saves it: waits until that is `expected`, and returns what it was last.
    QString awaitEditorText(const QString &expected);

    /// The visible windows of that title, as decimal numbers in lines.
    QByteArray windowNamed(const QString &title) const;

    void setClipboard(const QByteArray &text);
    QByteArray clipboard() const;
    /// Waits until the clipboard holds the text; false when it does not within two seconds.
    bool awaitClipboard(const QByteArray &text) const;

    void screenshot(const QString &path) const;

    QProcessEnvironment environment() const;
    const Session &session() const { return m_session; }
    const WireTap &tap() const { return m_tap; }
    ChildProcess &server() { return *m_backend; }
    const SoundServer &sound() const { return m_sound; }
    const VirtualDisplay &display() const { return m_display; }
    QString preferencesFile() const { return m_session.configFolder() + QStringLiteral("/Quillo/Quillo.conf"); }
    TestClient &user() { return m_user; }
    ChildProcess &quillo() { return *m_quillo; }

private:
    std::unique_ptr<ChildProcess> startBackend(const QStringList &options) const;
    quint16 listeningPort() const;
    int balanceRequests() const;
    void writePreferences() const;
    void startEditor();
    QString savedText();
    Instant awaitRawKey(int evdevCode);
    Instant awaitEditorDrawing();

    Session m_session;
    VirtualDisplay m_display{VirtualDisplay::WindowManager::Openbox};
    SoundServer m_sound;
    TestClient m_user{m_display};
    const HttpServer *m_server;
    std::unique_ptr<ChildProcess> m_backend;
    WireTap m_tap;
    std::unique_ptr<ChildProcess> m_editor;
    std::unique_ptr<ChildProcess> m_quillo;
    xcb_window_t m_editorWindow = 0;
    bool m_hasConsent;
};
