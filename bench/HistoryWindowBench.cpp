// SPDX-License-Identifier: MIT
#include "bench/Bench.h"
#include "store/newIdentifier.h"
#include "support/Await.h"
#include "support/ChildProcess.h"
#include "support/VirtualDisplay.h"
#include "ui/Windows.h"
#include "ui/history/HistoryModel.h"
#include "ui/history/HistoryView.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <malloc.h>
#include <random>
#include <stdexcept>
#include <unistd.h>

// The history window with 100,000 entries: from the call to its first frame, from a keystroke in the search field to
// the frame with the new rows, one frame of scrolling, and the memory it takes beside the history itself. Each process
// opens one window, in an engine that has made a view before, as in the program.

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int processes = 5;
constexpr int entries = 100'000;
constexpr int words = 32;
constexpr int rowsOnScreen = 5;
constexpr int longWords = 20'000;
constexpr double frame = 16;

QString text(std::mt19937 &random)
{
    static const QStringList vocabulary =
        u"the meeting project please send report tomorrow and we should about review hello group with that quick "
        "question is to of in table figure morning letter"_s.split(u' ');
    QStringList chosen;
    for (int i = 0; i < words; ++i) {
        chosen.append(vocabulary.at(qsizetype(random() % size_t(vocabulary.size()))));
    }
    return chosen.join(u' ');
}

/// Returns the bytes of all texts as the store keeps them.
double writeHistory(const QString &path)
{
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same history in every run
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        throw std::runtime_error("the history can't be written");
    }
    double bytes = 0;
    file.write("[");
    for (int i = 0; i < entries; ++i) {
        const QString entry = text(random);
        bytes += double(entry.size()) * sizeof(QChar);
        file.write(i == 0 ? "" : ",");
        file.write("{\"id\":\"" + newIdentifier().toUtf8() + "\",\"text\":\"" + entry.toUtf8() +
                   "\",\"timestamp\":\"2026-01-31T11:00:00Z\"}");
    }
    file.write("]");
    return bytes;
}

double residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("no /proc");
    }
    return file.readAll().split(' ').at(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

/// Milliseconds from before `act` to the first frame at which `isDone`.
double untilFrame(QQuickWindow &window, const std::function<void()> &act, const std::function<bool()> &isDone)
{
    int frames = 0;
    const auto connection =
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] { frames += isDone() ? 1 : 0; });
    const Instant from = std::chrono::steady_clock::now();
    act();
    if (!await([&] { return frames > 0; })) {
        throw std::runtime_error("nothing was drawn");
    }
    QObject::disconnect(connection);
    return milliseconds(from, std::chrono::steady_clock::now());
}

QQuickItem *find(QQuickItem *item, const char *className)
{
    if (QByteArray(item->metaObject()->className()).startsWith(className)) {
        return item;
    }
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = find(child, className)) {
            return found;
        }
    }
    return nullptr;
}

void print(const char *name, double value)
{
    std::printf("%s %f\n", name, value);
}

/// The rows on screen are those of the search.
bool showsMatches(HistoryModel &history)
{
    const HistoryRows &rows = *history.rows();
    bool showsAll = true;
    for (int row = 0; row < std::min(rows.rowCount(), rowsOnScreen); ++row) {
        showsAll &= rows.index(row).data(HistoryRows::TextRole).toString().contains(history.search());
    }
    return showsAll && (rows.rowCount() >= rowsOnScreen || !history.isSearching());
}

void measureSearch(QQuickView &view)
{
    auto *const history = view.findChild<HistoryModel *>();
    QQuickItem *const search = find(view.rootObject(), "SearchField");
    search->property("field").value<QQuickItem *>()->forceActiveFocus();
    for (const QString &query : {u"tomorrow"_s, u"hello group"_s, u"zebra"_s}) {
        for (const QChar letter : query) {
            const int key = letter.toUpper().unicode();
            const double time = untilFrame(
                view,
                [&] {
                    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(letter));
                    QCoreApplication::sendEvent(&view, &press);
                },
                [&] { return showsMatches(*history); });
            print("keystroke", time);
            pause(30ms);
        }
        history->setSearch({});
        pause(60ms);
    }
}

void measureScrolling(QQuickView &view, const char *name)
{
    QQuickItem *const list = find(view.rootObject(), "QQuickListView");
    for (int i = 0; i < 200; ++i) {
        const double to = list->property("contentY").toDouble() + 90; // a brisk turn of the wheel
        print(name, untilFrame(
                        view, [&] { list->setProperty("contentY", to); }, [] { return true; }));
    }
}

double timeToFirstFrame(HistoryWindow &window, QQuickView *&view)
{
    int frames = 0;
    const Instant from = std::chrono::steady_clock::now();
    window.show(false);
    QObject scope; // ends the connection
    QObject::connect(view, &QQuickWindow::frameSwapped, &scope, [&] { ++frames; });
    if (!await([&] { return frames > 0; })) {
        throw std::runtime_error("nothing was drawn");
    }
    return milliseconds(from, std::chrono::steady_clock::now());
}

void measureLongTranscript()
{
    Windows windows;
    windows.store.add(u"This is a sentence of nine words, no more. "_s.repeated(longWords / 9), std::nullopt);
    print("longOpen", timeToFirstFrame(*windows.history, windows.historyView));
    pause(300ms);
    measureScrolling(*windows.historyView, "longScroll");
}

void measureWindow(const QByteArray &history)
{
    Windows windows;
    windows.settings->show(); // a view has been made before
    pause(500ms);
    windows.settingsView->close();
    QFile::copy(QString::fromLocal8Bit(history), windows.store.filePath());
    TranscriptionStore store(windows.fake.files, windows.fake.clock);
    if (store.items().size() != entries) {
        throw std::runtime_error("not all entries were loaded");
    }
    QQuickView *view = nullptr;
    HistoryWindow window(
        windows.fake.application, windows.fake.preferences, windows.fake.screens, [&](HistoryWindow &owner) {
            AppModel &model = *windows.model;
            auto made = HistoryView::makeWindow(
                windows.engine, {model.dictation(), model.shortcuts(), model.tokenBalance(), model.unsent()}, store,
                windows.groups, owner, windows.fake.pasteboard, windows.fake.clock);
            view = qobject_cast<QQuickView *>(made.get());
            return made;
        });
    pause(300ms);
    malloc_trim(0); // what reading the history has left free is not to be mistaken for memory saved
    const double before = residentBytes();
    print("open", timeToFirstFrame(window, view));
    pause(1s);
    measureSearch(*view);
    print("memory", residentBytes() - before);
    measureScrolling(*view, "scroll");
    measureLongTranscript();
}

void measure()
{
    const VirtualDisplay display(VirtualDisplay::WindowManager::Openbox);
    const QTemporaryDir folder;
    const QString history = folder.filePath(u"history.json"_s);
    const double textBytes = writeHistory(history);
    QMap<QByteArray, std::vector<double>> figures;
    for (int i = 0; i < processes; ++i) {
        auto environment = display.environment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        ChildProcess child(QCoreApplication::applicationFilePath(), {history}, environment);
        if (child.wait(120s) != 0) {
            throw std::runtime_error(child.process().readAllStandardError().toStdString());
        }
        for (const QByteArray &line : child.process().readAllStandardOutput().split('\n')) {
            if (const auto parts = line.split(' '); parts.size() == 2) {
                figures[parts.first()].push_back(parts.last().toDouble());
            }
        }
    }
    const auto worst = [](const std::vector<double> &values) { return *std::ranges::max_element(values); };
    const auto limited = [](const QString &name, const QString &unit, double value, double limit) {
        report({name, unit, value, std::nullopt, limit, Figure::LimitOn::Value});
    };
    limited(u"history window of 100,000: show to first frame"_s, u"ms"_s, median(figures["open"]), 150);
    limited(u"history window of 100,000: keystroke in the search to frame"_s, u"ms"_s, median(figures["keystroke"]),
            frame);
    limited(u"history window of 100,000: the slowest keystroke"_s, u"ms"_s, worst(figures["keystroke"]), frame);
    limited(u"history window of 100,000: scrolling by 90 points to frame"_s, u"ms"_s, median(figures["scroll"]), frame);
    limited(u"history window of 100,000: the slowest frame of scrolling"_s, u"ms"_s, worst(figures["scroll"]), frame);
    limited(u"history window with a transcript of 20,000 words: show to first frame"_s, u"ms"_s,
            median(figures["longOpen"]), 150);
    limited(u"history window with a transcript of 20,000 words: the slowest frame of scrolling"_s, u"ms"_s,
            worst(figures["longScroll"]), frame);
    report({u"history window of 100,000: memory after searching (reference: the texts)"_s, u"MB"_s,
            median(figures["memory"]) / 1e6, textBytes / 1e6, 2});
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 1) {
        const QCoreApplication application(argc, argv);
        return runBench(measure);
    }
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return runBench([argv] { measureWindow(argv[1]); });
}
