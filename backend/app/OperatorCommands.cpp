// SPDX-License-Identifier: MIT
#include "app/OperatorCommands.h"

#include "app/EngineChoice.h"
#include "audio/AudioDecoder.h"
#include "audio/SpeechGate.h"

#include <QDateTime>
#include <QFile>

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageSize = 1000;

/// Opens no new, empty database: if there is none, the operator has mistyped where the devices are.
Store openStore(const Settings &settings)
{
    if (!Database::isPostgreSql(settings.database) && !QFile::exists(settings.database)) {
        throw StoreError("there is no database " + settings.database.toStdString());
    }
    return {settings.database, settings.grants, systemClock()};
}

/// A device may call its platform anything; to a terminal, control characters are commands.
QString escaped(const QString &text)
{
    QString escaped;
    for (const auto c : text) {
        escaped += c.isPrint() ? QString(c) : u"\\u%1"_s.arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }
    return escaped;
}

void print(const QString &line)
{
    std::cout << escaped(line).toStdString() << '\n';
}

QString timeText(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds).toUTC().toString(Qt::ISODate);
}

QString line(const DeviceRecord &device)
{
    QStringList words{u"%1"_s.arg(device.balance, 12), timeText(device.createdAt), device.platform};
    if (device.held > 0) {
        words.append(u"held=%1"_s.arg(device.held));
    }
    if (device.unmetered) {
        words.append(u"unmetered"_s);
    }
    if (device.revoked) {
        words.append(u"revoked"_s);
    }
    return device.id + u"  "_s + words.join(u"  "_s);
}

[[noreturn]] void failUnknown(const QString &id)
{
    throw StoreError("there is no device " + id.toStdString());
}

void failUnexplained(Store &store)
{
    if (const auto unexplained = store.ledger.unexplained(); !unexplained.isEmpty()) {
        throw StoreError("the entries do not add up to the balance of " + unexplained.join(u", "_s).toStdString());
    }
}

void print(Store &store, const QString &id)
{
    const auto device = store.devices.find(id);
    if (!device) {
        failUnknown(id);
    }
    print(line(*device));
}

} // namespace

void listDevices(const Settings &settings, const QStringList &)
{
    auto store = openStore(settings);
    auto devices = store.devices.list({}, pageSize);
    while (!devices.isEmpty()) {
        for (const auto &device : devices) {
            print(line(device));
        }
        devices = store.devices.list(devices.last().id, pageSize);
    }
}

void showDevice(const Settings &settings, const QStringList &words)
{
    auto store = openStore(settings);
    print(store, words[0]);
}

void grantTokens(const Settings &settings, const QStringList &words)
{
    bool valid = false;
    const auto tokens = words[1].toLongLong(&valid);
    if (!valid || tokens == 0) {
        failSettings(u"TOKENS must be a whole number other than 0"_s);
    }
    auto store = openStore(settings);
    if (!store.devices.find(words[0])) {
        failUnknown(words[0]);
    }
    Transaction transaction(store.database);
    if (!store.ledger.credit(words[0], tokens, u"operator"_s)) {
        throw StoreError("the device would have fewer tokens than none, or more than there can be");
    }
    transaction.commit();
    print(store, words[0]);
}

void unmeterDevice(const Settings &settings, const QStringList &words)
{
    auto store = openStore(settings);
    store.devices.setUnmetered(words[0], true);
    print(store, words[0]);
}

void meterDevice(const Settings &settings, const QStringList &words)
{
    auto store = openStore(settings);
    store.devices.setUnmetered(words[0], false);
    print(store, words[0]);
}

void revokeDevice(const Settings &settings, const QStringList &words)
{
    auto store = openStore(settings);
    store.devices.revoke(words[0]);
    print(store, words[0]);
}

void showLedger(const Settings &settings, const QStringList &words)
{
    auto store = openStore(settings);
    const auto id = words.value(0);
    if (!id.isEmpty() && !store.devices.find(id)) {
        failUnknown(id);
    }
    auto entries = store.ledger.entries(id, 0, pageSize);
    while (!entries.isEmpty()) {
        for (const auto &entry : entries) {
            print(u"%1  %2  %3  %4  %5"_s.arg(timeText(entry.createdAt), entry.deviceId)
                      .arg(entry.amount, 12)
                      .arg(entry.reason, entry.reference)
                      .trimmed());
        }
        entries = store.ledger.entries(id, entries.last().id, pageSize);
    }
    failUnexplained(store);
}

void backUp(const Settings &settings, const QStringList &words)
{
    openStore(settings).database.backUp(words[0]);
}

/// Copies the file to where no database is yet, and gives it its name once it is known to be sound.
void restore(const Settings &settings, const QStringList &words)
{
    const auto copy = settings.database + u".restored"_s;
    if (Database::isPostgreSql(settings.database)) {
        throw StoreError("PostgreSQL is restored by pg_restore");
    }
    if (QFile::exists(settings.database)) {
        throw StoreError("there is a database " + settings.database.toStdString() + "; move it away first");
    }
    QFile::remove(copy);
    if (!QFile::exists(words[0]) || !QFile::copy(words[0], copy)) {
        throw StoreError(words[0].toStdString() + " can't be copied beside the database");
    }
    QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    auto place = settings;
    place.database = copy;
    checkDatabase(place, {});
    QFile::rename(copy, settings.database);
}

void checkDatabase(const Settings &settings, const QStringList &)
{
    auto store = openStore(settings);
    if (const auto damages = store.database.damages(); !damages.isEmpty()) {
        throw StoreError("the database is damaged: " + damages.join(u"; "_s).toStdString());
    }
    failUnexplained(store);
    print(u"The database is sound: version %1, %2 devices, and every balance is explained."_s
              .arg(store.database.version())
              .arg(store.devices.count()));
}

void testEngine(const Settings &settings, const QStringList &words)
{
    QFile file(words[0]);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(words[0].toStdString() + " can't be read");
    }
    const auto bytes = file.readAll().toStdString();
    SpeechGate gate;
    const auto count =
        decodeAudio(bytes, {longestRecording}, [&](std::span<const int16_t> samples) { gate.add(samples); });
    const auto seconds = static_cast<double>(count) / speechRate;
    if (!gate.mayHoldSpeech()) {
        std::cerr << seconds << " s of silence or noise, which the engine is not given\n";
        return;
    }
    const auto engine = makeEngine(settings);
    engine->prepare();
    const auto started = std::chrono::steady_clock::now();
    print(engine->transcribe({bytes, longestRecording}).trimmed());
    const auto taken = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    std::cerr << taken << " s for " << seconds << " s of audio, real-time factor " << taken / seconds << '\n';
}

void checkConfiguration(const Settings &settings, const QStringList &)
{
    print(u"The configuration is right. The database is %1."_s.arg(shownDatabase(settings.database)));
}
