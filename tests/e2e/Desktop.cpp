// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"

#include "support/Await.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <xcb/damage.h>
#include <xcb/xinput.h>

#include <linux/input-event-codes.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QByteArray uploadRequest = "POST /v1/transcribe";
const QByteArray balanceRequest = "GET /v1/balance";

/// Wider than a text cursor, which blinks by itself.
constexpr int narrowestText = 8;

void require(bool condition, const char *what)
{
    if (!condition) {
        throw std::runtime_error(what);
    }
}

/// A time of the X server, which counts milliseconds of the monotonic clock in 32 bits. It is when the server saw the
/// event, not when it reached us.
Desktop::Instant instant(xcb_timestamp_t serverTime)
{
    const auto now = std::chrono::steady_clock::now();
    const auto nowInMilliseconds =
        uint32_t(std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count());
    return now - std::chrono::milliseconds(int32_t(nowInMilliseconds - serverTime));
}

template <typename Event> const Event &as(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const Event &>(event);
}

} // namespace

Speech Speech::goForward()
{
    return {u"/usr/share/pocketsphinx/test/data/goforward.raw"_s, 16000};
}

Desktop::Desktop(const DesktopOptions &options)
    : m_server(options.server),
      m_backend(m_server == nullptr ? startBackend(options.serverOptions) : nullptr),
      m_tap(listeningPort()),
      m_hasConsent(options.hasConsent)
{
    run(u"xsetroot"_s, {u"-solid"_s, u"#4d7ea8"_s}, environment());
    writePreferences();
    if (options.hasEditor) {
        startEditor();
    }
    if (options.isStarted) {
        start();
    }
}

std::unique_ptr<ChildProcess> Desktop::startBackend(const QStringList &options) const
{
    return std::make_unique<ChildProcess>(
        QStringLiteral(QUILLO_BACKEND_PROGRAM),
        QStringList{u"--port"_s, u"0"_s, u"--database"_s, m_session.path(u"backend.db"_s)} + options,
        m_session.environment());
}

quint16 Desktop::listeningPort() const
{
    const QString address = m_server == nullptr ? m_backend->readLine().section(u' ', -1) : m_server->url();
    return quint16(QUrl(address).port());
}

int Desktop::balanceRequests() const
{
    return m_server == nullptr ? m_tap.count(balanceRequest) : m_server->count("/v1/balance");
}

void Desktop::writePreferences() const
{
    QDir().mkpath(QFileInfo(preferencesFile()).path());
    QFile file(preferencesFile());
    require(file.open(QIODevice::WriteOnly), "the preferences can't be written");
    file.write("[General]\napiURL=" + (m_server == nullptr ? m_tap.url() : m_server->url()).toUtf8() + '\n');
    if (m_hasConsent) {
        file.write("aiConsent=\"@ByteArray({\\\"version\\\":1,\\\"grantedAt\\\":790000000})\"\n");
    }
}

QProcessEnvironment Desktop::environment() const
{
    QProcessEnvironment environment = m_session.environment(m_display.environment());
    environment.insert(u"PULSE_SERVER"_s, m_sound.address());
    environment.insert(u"NO_AT_BRIDGE"_s, u"1"_s);                     // the editor needs no accessibility bus
    environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s); // by which notices are read
    environment.remove(u"QT_QPA_PLATFORM"_s);
    return environment;
}

void Desktop::startEditor()
{
    const QString path = m_session.path(u"note.txt"_s);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "the editor's file can't be made");
    file.close();
    m_editor = std::make_unique<ChildProcess>(u"mousepad"_s, QStringList{u"--disable-server"_s, path}, environment());
    const QByteArray found = run(u"xdotool"_s,
                                 {u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--class"_s, u"mousepad"_s,
                                  u"windowactivate"_s, u"--sync"_s, u"getactivewindow"_s},
                                 environment());
    m_editorWindow = found.trimmed().split('\n').last().toUInt();
    require(m_editorWindow != 0, "the editor has no window");

    // From here on its drawing and every key are reported on the user's connection.
    auto *const xcb = m_user.xcb();
    const XcbPtr<xcb_damage_query_version_reply_t> damage(
        xcb_damage_query_version_reply(xcb, xcb_damage_query_version(xcb, 1, 1), nullptr));
    const XcbPtr<xcb_input_xi_query_version_reply_t> input(
        xcb_input_xi_query_version_reply(xcb, xcb_input_xi_query_version(xcb, 2, 2), nullptr));
    require(damage && input, "the X server lacks DAMAGE or XInput 2");
    xcb_damage_create(xcb, xcb_generate_id(xcb), m_editorWindow, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    const struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS;
    } rawKeys;
    xcb_input_xi_select_events(xcb, m_user.root(), 1, &rawKeys.head);
    m_user.sync();
}

void Desktop::start()
{
    const int before = balanceRequests();
    m_quillo = std::make_unique<ChildProcess>(QStringLiteral(QUILLO_PROGRAM), QStringList{}, environment());
    // With consent the first balance is asked for once the shortcuts are armed, else the consent window opened.
    const bool isUp =
        await([&] { return m_hasConsent ? balanceRequests() > before : !windowNamed(u"Quillo"_s).isEmpty(); });
    require(isUp, "quillo did not start");
}

QByteArray Desktop::windowNamed(const QString &title) const
{
    ChildProcess search(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^%1$"_s.arg(title)},
                        environment());
    search.wait(); // fails when there is none
    return search.process().readAllStandardOutput().trimmed();
}

Desktop::Outcome Desktop::command(const QStringList &arguments, const QByteArray &input) const
{
    ChildProcess process(QStringLiteral(QUILLO_PROGRAM), arguments, environment());
    process.process().write(input);
    process.process().closeWriteChannel();
    const int status = process.wait();
    return {status, QString::fromUtf8(process.process().readAllStandardOutput()),
            QString::fromUtf8(process.process().readAllStandardError())};
}

QJsonObject Desktop::status() const
{
    return QJsonDocument::fromJson(command({u"status"_s, u"--json"_s}).output.toUtf8()).object();
}

bool Desktop::awaitStatus(const QString &key, const QJsonValue &value) const
{
    return await([&] { return status().value(key) == value; });
}

Desktop::Dictation Desktop::dictate(const Speech &speech, const std::function<void()> &whileListening,
                                    const std::function<void()> &whileTranscribing)
{
    const int uploads = m_tap.count(uploadRequest);
    for (const int key : {KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE}) {
        m_user.press(key);
    }
    const auto playing = m_sound.play(speech.rawFile, speech.rate);
    if (whileListening) {
        whileListening();
    }
    playing->wait();

    Dictation dictation;
    dictation.released = std::chrono::steady_clock::now();
    for (const int key : {KEY_SPACE, KEY_LEFTALT, KEY_LEFTCTRL}) {
        m_user.release(key);
    }
    if (whileTranscribing) {
        require(await([&] { return m_tap.count(uploadRequest) > uploads; }), "nothing was uploaded");
        whileTranscribing();
    }
    dictation.keystroke = awaitRawKey(KEY_V);
    dictation.onScreen = awaitEditorDrawing();
    dictation.upload = m_tap.last(uploadRequest).value_or(WireTap::Exchange{});
    const QByteArray body = dictation.upload.reply.sliced(dictation.upload.reply.indexOf("\r\n\r\n") + 4);
    dictation.text = QJsonDocument::fromJson(body).object().value(u"text"_s).toString();
    return dictation;
}

Desktop::Instant Desktop::awaitRawKey(int evdevCode)
{
    const auto event = m_user.next([&](const xcb_generic_event_t &candidate) {
        const auto &key = as<xcb_input_raw_key_press_event_t>(candidate);
        return (candidate.response_type & 0x7f) == XCB_GE_GENERIC && key.event_type == XCB_INPUT_RAW_KEY_PRESS &&
               key.detail == uint32_t(evdevCode) + 8;
    });
    require(event != nullptr, "the paste keystroke did not come");
    return instant(as<xcb_input_raw_key_press_event_t>(*event).time);
}

Desktop::Instant Desktop::awaitEditorDrawing()
{
    const int drawn = xcb_get_extension_data(m_user.xcb(), &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
    const auto event = m_user.next([&](const xcb_generic_event_t &candidate) {
        return (candidate.response_type & 0x7f) == drawn &&
               as<xcb_damage_notify_event_t>(candidate).area.width >= narrowestText;
    });
    require(event != nullptr, "the editor drew nothing");
    return instant(as<xcb_damage_notify_event_t>(*event).timestamp);
}

QString Desktop::awaitEditorText(const QString &expected)
{
    // The editor may take the save keystroke before it has got the pasted text, so one save is not enough.
    QString text;
    const QDeadlineTimer deadline(std::chrono::seconds(20));
    do {
        text = savedText();
    } while (text != expected && !deadline.hasExpired());
    return text;
}

QString Desktop::savedText()
{
    const QString path = m_session.path(u"note.txt"_s);
    const QDateTime before = QFileInfo(path).lastModified();
    m_user.press(KEY_LEFTCTRL);
    m_user.tap(KEY_S);
    m_user.release(KEY_LEFTCTRL);
    // An editor with nothing new to save leaves the file alone: then this is only the pause before the next try.
    await([&] { return QFileInfo(path).lastModified() > before; }, std::chrono::milliseconds(500));
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "the editor's file can't be read");
    return QString::fromUtf8(file.readAll());
}

void Desktop::setClipboard(const QByteArray &text)
{
    run(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-in"_s}, environment(), text);
}

QByteArray Desktop::clipboard() const
{
    return run(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-out"_s, u"-target"_s, u"UTF8_STRING"_s}, environment());
}

bool Desktop::awaitClipboard(const QByteArray &text) const
{
    return await([&] { return clipboard() == text; }, std::chrono::seconds(2));
}

void Desktop::screenshot(const QString &path) const
{
    run(u"import"_s, {u"-window"_s, u"root"_s, path}, environment());
}
