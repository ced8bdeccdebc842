// SPDX-License-Identifier: MIT
#include "bench/ProcessUsage.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("can't be read: " + path.toStdString());
    }
    return file.readAll();
}

/// The number after a label at the start of a line.
qint64 number(const QByteArray &lines, const QByteArray &label)
{
    for (const QByteArray &line : lines.split('\n')) {
        if (line.startsWith(label)) {
            return line.sliced(label.size()).simplified().split(' ').first().toLongLong();
        }
    }
    throw std::runtime_error("missing: " + label.toStdString());
}

} // namespace

ProcessUsage ProcessUsage::of(qint64 pid)
{
    constexpr double kibibytes = 1024;
    const QString folder = u"/proc/%1/"_s.arg(pid);
    const QByteArray memory = content(folder + u"smaps_rollup"_s);
    ProcessUsage usage;
    usage.rssMebibytes = double(number(memory, "Rss:")) / kibibytes;
    usage.pssMebibytes = double(number(memory, "Pss:")) / kibibytes;
    const QDir tasks(folder + u"task"_s);
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QByteArray scheduling = content(tasks.filePath(task + u"/schedstat"_s));
        usage.processorTime += std::chrono::nanoseconds(scheduling.split(' ').first().toLongLong());
        usage.waits += number(content(tasks.filePath(task + u"/status"_s)), "voluntary_ctxt_switches:");
    }
    return usage;
}
