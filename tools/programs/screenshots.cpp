// SPDX-License-Identifier: MIT
#include "i18n/Translations.h"
#include "platform/KeyCodes.h"
#include "support/Await.h"
#include "ui/Windows.h"
#include "ui/consent/ConsentView.h"
#include "ui/consent/DisclosureView.h"
#include "ui/history/HistoryModel.h"
#include "ui/hud/HUDModel.h"
#include "ui/settings/SettingsModel.h"
#include "ui/style/Paper.h"
#include "ui/windows/makeViewWindow.h"

#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTranslator>

#include <cstdio>
#include <stdexcept>

// Renders every window and every phase of the HUD with the program's own views into a folder of PNG files.
// Usage: quillo-screenshots FOLDER SUFFIX LANGUAGE
// In the language "pseudo" it fails when a text is cut off.

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString folder;
QString suffix;
bool isAnyTextCutOff = false;

void letSettle(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The program's own texts are in brackets; what a person has written may be cut off.
void findCutOffTexts(const QQuickItem &item, const QString &name)
{
    if (!item.isVisible()) {
        return;
    }
    const QString text = item.property("text").toString();
    const bool isTooWide = item.mapToScene({item.width(), 0}).x() > item.window()->width();
    if (text.startsWith(u'[') && (item.property("truncated").toBool() || isTooWide)) {
        std::fprintf(stderr, "cut off in %s: %s\n", qPrintable(name), qPrintable(text));
        isAnyTextCutOff = true;
    }
    for (const QQuickItem *child : item.childItems()) {
        findCutOffTexts(*child, name);
    }
}

void save(QQuickWindow &window, const QString &name)
{
    letSettle(600ms); // the longest animation takes 350 ms
    findCutOffTexts(*window.contentItem(), name);
    const QString path = folder + u'/' + name + suffix + u".png"_s;
    if (!window.grabWindow().save(path)) {
        throw std::runtime_error("can't write " + path.toStdString());
    }
    std::puts(qPrintable(path));
}

QQuickItem *find(QQuickItem *item, const char *type)
{
    if (QByteArray(item->metaObject()->className()).startsWith(QByteArray(type) + '_')) {
        return item;
    }
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = find(child, type)) {
            return found;
        }
    }
    return nullptr;
}

void fillGroups(Windows &windows, const QStringList &names)
{
    for (const QString &name : names) {
        windows.groups.add(name);
    }
}

void fillHistory(Windows &windows)
{
    struct Entry {
        QString text;
        std::chrono::minutes before;
        int group;
    };
    const QList<Entry> entries{
        {u"Packing list: charger, notebook, rain jacket, and the small tripod."_s, 60h * 30, -1},
        {u"שלום לכולם, הפגישה מחר בשעה עשר. נא לאשר הגעה."_s, 70h, 1},
        {u"Please confirm the delivery for Thursday 🎉 and tell them we need two more days. 👍🏽"_s, 26h, 0},
        {u"The quarterly figures look better than expected. Revenue is up eleven percent, mostly from the two new "
         "regions, and support costs have not grown with it. I would still like a second pair of eyes on the "
         "forecast before it goes to the board on Tuesday."_s,
         3h, 0},
        {u"Idea for the opening chapter: begin with the letter, not with the storm."_s, 61min, 1},
        {u"Thanks for the quick reply. Tomorrow at ten works for me."_s, 4min, -1},
    };
    const auto now = windows.fake.clock.now();
    for (const Entry &entry : entries) {
        windows.fake.clock.set(now - entry.before);
        const auto &groups = windows.groups.groups();
        windows.store.add(entry.text, entry.group < 0 ? std::nullopt : std::optional(groups.at(entry.group).id));
    }
    windows.fake.clock.set(now);
}

void takeHistory()
{
    {
        Windows empty;
        empty.history->show(false);
        save(*empty.historyView, u"history-empty"_s);
    }
    Windows windows;
    fillGroups(windows, {u"Work"_s, u"Novel"_s, u"Errands"_s, u"Talks"_s});
    fillHistory(windows);
    windows.history->show(false);
    QQuickView &view = *windows.historyView;
    save(view, u"history-full"_s);
    QMetaObject::invokeMethod(find(view.rootObject(), "EntryRow"), "menuRequested", Q_ARG(QPointF, QPointF(160, 40)));
    save(view, u"history-entry-menu"_s);
    QTest::keyClick(&view, Qt::Key_Escape);
    auto *const history = view.findChild<HistoryModel *>();
    history->setSearch(u"tomorrow"_s);
    save(view, u"history-search"_s);
    history->setSearch(u"zebra"_s);
    save(view, u"history-no-matches"_s);
    history->setSearch({});
    windows.model->handle(ShortcutEvent::Pressed);
    windows.groups.setActiveId(windows.groups.groups().first().id);
    const QString copied = windows.store.items(windows.groups.activeId()).first().id;
    history->copy(copied);
    save(view, u"history-group-recording"_s);
    windows.groups.setActiveId(windows.groups.groups().last().id);
    windows.transcript.ending = HttpServer::Response::Ending::NeverReply;
    windows.fake.clock.advance(1s);
    windows.model->handle(ShortcutEvent::Released);
    save(view, u"history-group-empty"_s);
    windows.history->show(true);
    save(view, u"group-editor"_s);
    windows.history->setEditingGroups(false);
    fillGroups(windows, {u""_s, u"Weekly planning notes and everything that did not fit elsewhere"_s});
    windows.groups.setActiveId(windows.groups.groups().last().id);
    view.resize(380, 440);
    save(view, u"history-long-names-small"_s);
    windows.history->show(true);
    save(view, u"group-editor-long-names"_s);
}

void takeSettings(const QString &scheme)
{
    Windows windows;
    windows.fake.packagedInfo.values.insert(u"CFBundleShortVersionString"_s, u"0.1.0"_s);
    windows.settings->show();
    QQuickView &view = *windows.settingsView;
    save(view, u"settings-empty-"_s + scheme);
    fillGroups(windows, {u"Work"_s, u"Novel"_s, u"Errands"_s});
    fillHistory(windows);
    windows.model->setShortcut(Shortcut::modifier(ModifierKey::Fn));
    windows.fake.accessibility.trusted = false;
    windows.fake.clock.advance(2s);
    windows.consent.withdraw();
    windows.model->showConsent(true);
    windows.fake.application.front->close();
    windows.model->setLaunchesAtLogin(true);
    windows.fake.hotKeys.takenByOthers = {{KeyCode::g, HotKeyModifier::control | HotKeyModifier::option}};
    windows.model->armWindowShortcuts();
    save(view, u"settings-warnings-"_s + scheme);
    windows.model->shortcuts().useStandard(Shortcuts::Use::Dictation);
    ShortcutRecorderModel *const recorder = view.findChild<SettingsModel *>()->shortcutRecorder();
    recorder->toggle();
    save(view, u"settings-recorder-listening-"_s + scheme);
    (*windows.fake.keyMonitors.local.front())({KeyEvent::Type::KeyDown, KeyCode::g, 0, u"g"_s});
    save(view, u"settings-recorder-rejecting-"_s + scheme);
    recorder->stop();
    find(view.rootObject(), "HistorySection")->setProperty("confirmClear", true);
    save(view, u"settings-delete-all-"_s + scheme);
}

void takeConsent(const QString &scheme)
{
    FakePlatform fake;
    QQmlEngine engine;
    AIConsent consent(fake.preferences, fake.clock);
    fake.packagedInfo.values = {{u"QLOOpenAIPrivacyURL"_s, u"https://openai.example/"_s},
                                {u"QLOPrivacyPolicyURL"_s, u"https://quillo.example/"_s},
                                {u"QLOApiURL"_s, u"http://127.0.0.1:8791"_s}};
    for (const bool isReview : {false, true}) {
        DisclosureView disclosure(isReview, consent, fake.preferences, fake.packagedInfo, [](bool) {});
        const auto window = ConsentView::makeWindow(engine, disclosure);
        window->show();
        save(static_cast<QQuickWindow &>(*window), (isReview ? u"consent-review-"_s : u"consent-first-"_s) + scheme);
        consent.grant();
    }
}

void takeHUD()
{
    QQmlEngine engine;
    const std::pair<QString, HUDModel::Phase> phases[]{
        {u"hud-recording"_s, HUDPhase::Recording{}},
        {u"hud-recording-hands-free"_s, HUDPhase::Recording{true}},
        {u"hud-transcribing"_s, HUDPhase::Transcribing{}},
        {u"hud-message"_s, HUDPhase::Message{QCoreApplication::translate("Dictation", "Copied — press ⌘V to paste")}},
        {u"hud-error"_s, HUDPhase::Message{ApiError::network().localizedDescription(), true}},
        {u"hud-group"_s, HUDPhase::Group{u"Work"_s}},
        {u"hud-group-long"_s, HUDPhase::Group{u"Weekly planning notes and everything else"_s}},
        {u"hud-out-of-tokens"_s, HUDPhase::OutOfTokens{}},
        {u"hud-no-free-tokens"_s, HUDPhase::OutOfTokens{true}},
    };
    for (const auto &[name, phase] : phases) {
        HUDModel model;
        model.setPhase(phase);
        model.setLevel(0.6F);
        const auto view = makeViewWindow(engine, u"hud/HUDView"_s, {{u"model"_s, QVariant::fromValue(&model)}});
        view->setColor(QColor(0x8a, 0x93, 0xa0));
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->resize(280, 56);
        view->show();
        save(*view, name);
    }
}

void setDark(bool isDark)
{
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, isDark ? Qt::black : Qt::white);
    palette.setColor(QPalette::WindowText, isDark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(palette);
}

void speak(const QString &language)
{
    Translations::install(language);
    static QTranslator pseudo;
    if (language == u"pseudo" && pseudo.load(u":/i18n/quillo_pseudo.qm"_s)) {
        QCoreApplication::installTranslator(&pseudo);
    }
    QLocale::setDefault(QLocale(language)); // dates and numbers
}

} // namespace

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: quillo-screenshots FOLDER SUFFIX LANGUAGE\n", stderr);
        return 2;
    }
    folder = arguments.at(1);
    suffix = arguments.at(2);
    speak(arguments.at(3));
    QDir().mkpath(folder);
    Paper::registerFonts(qEnvironmentVariable("QUILLO_RESOURCES"));
    try {
        setDark(false);
        takeHistory();
        takeSettings(u"light"_s);
        takeConsent(u"light"_s);
        setDark(true);
        takeSettings(u"dark"_s);
        takeConsent(u"dark"_s);
        takeHUD();
        return isAnyTextCutOff ? 1 : 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
