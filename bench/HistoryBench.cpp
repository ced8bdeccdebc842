// SPDX-License-Identifier: MIT
#include "bench/Bench.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "store/TranscriptionStore.h"
#include "store/newIdentifier.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

// A long history: loading it, and adding an entry against writing the same bytes durably.

using namespace Qt::StringLiterals;

namespace {

constexpr int entries = 100'000;
constexpr int textBytes = 200;
constexpr int loads = 5;
constexpr int additions = 9;

void require(bool condition, const char *what)
{
    if (!condition) {
        throw std::runtime_error(what);
    }
}

QString text(int number)
{
    return u"%1 "_s.arg(number, 6).leftJustified(textBytes, u'a');
}

void writeHistory(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "the history can't be written");
    file.write("[");
    for (int i = 0; i < entries; ++i) {
        file.write(i == 0 ? "" : ",");
        file.write("{\"id\":\"" + newIdentifier().toUtf8() + "\",\"text\":\"" + text(i).toUtf8() +
                   "\",\"timestamp\":\"2026-01-31T12:00:00Z\"}");
    }
    file.write("]");
}

QByteArray content(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "the history can't be read");
    return file.readAll();
}

void writePlainly(const QByteArray &folder, const QByteArray &bytes)
{
    const QByteArray target = folder + "/plain.json";
    const QByteArray temporary = target + ".new";
    const int file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    require(file >= 0, "the plain file can't be made");
    require(::write(file, bytes.constData(), size_t(bytes.size())) == bytes.size(), "short write");
    require(::fsync(file) == 0 && ::close(file) == 0, "the plain file can't be synced");
    require(::rename(temporary.constData(), target.constData()) == 0, "the plain file can't be renamed");
    const int directory = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(directory >= 0 && ::fsync(directory) == 0 && ::close(directory) == 0, "the folder can't be synced");
}

void measure()
{
    const QTemporaryDir folder(QDir::currentPath() + u"/bench-XXXXXX"_s); // where builds are: on a disk
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    XdgFiles files;
    SystemClock clock;
    const QString path = folder.path() + u"/Quillo/transcriptions.json"_s;
    files.createFolder(folder.path() + u"/Quillo"_s);
    writeHistory(path);

    std::vector<double> loading;
    std::vector<double> parsing;
    std::unique_ptr<TranscriptionStore> store;
    for (int i = 0; i < loads; ++i) {
        parsing.push_back(timed([&] { require(QJsonDocument::fromJson(content(path)).isArray(), "no array"); }));
        store.reset();
        loading.push_back(timed([&] { store = std::make_unique<TranscriptionStore>(files, clock); }));
        require(store->items().size() == entries, "not all entries were loaded");
    }

    std::vector<double> adding;
    std::vector<double> writing;
    for (int i = 0; i < additions; ++i) {
        adding.push_back(timed([&] { store->add(text(entries + i), std::nullopt); }));
        const QByteArray bytes = content(path);
        writing.push_back(timed([&] { writePlainly(folder.path().toLocal8Bit() + "/Quillo", bytes); }));
    }
    const QByteArray stored = content(path);
    require(stored.count("\"id\"") == entries + additions, "not all entries were stored");

    report({u"history of 100,000: load (reference: read and parse the same file)"_s, u"ms"_s, median(loading),
            median(parsing)});
    report({u"history of 100,000: add (reference: plain write, fsync, rename of the same bytes)"_s, u"ms"_s,
            median(adding), median(writing), 1.5});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runBench(measure);
}
