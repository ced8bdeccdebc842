// SPDX-License-Identifier: MIT
#include "support/Log.h"

#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

namespace {

constexpr size_t mostWaiting = 4UL * 1024 * 1024; // bytes

class LogWriter {
public:
    LogWriter() { std::thread(&LogWriter::run, this).detach(); }

    void add(std::string_view line)
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting.size() + line.size() > mostWaiting) {
            ++m_lost;
            return;
        }
        for (const auto c : line) {
            // To a terminal, control characters are commands, and to who reads the log, line ends are new entries.
            m_waiting += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? '?' : c;
        }
        m_waiting += '\n';
        m_added.notify_one();
    }

    void flush(std::chrono::milliseconds longest)
    {
        std::unique_lock lock(m_mutex);
        m_written.wait_for(lock, longest, [this] { return m_waiting.empty() && !m_isWriting; });
    }

private:
    void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_added.wait(lock, [this] { return !m_waiting.empty(); });
            auto lines = std::exchange(m_waiting, {});
            if (const auto lost = std::exchange(m_lost, 0); lost > 0) {
                lines += "quillo-backend: " + std::to_string(lost) + " lines of the log were left out\n";
            }
            m_isWriting = true;
            lock.unlock();
            write(lines);
            lock.lock();
            m_isWriting = false;
            m_written.notify_all();
        }
    }

    static void write(std::string_view lines)
    {
        while (!lines.empty()) {
            const auto count = ::write(STDERR_FILENO, lines.data(), lines.size());
            if (count < 0 && errno != EINTR) {
                return; // there is nowhere to tell it
            }
            lines.remove_prefix(static_cast<size_t>(count < 0 ? 0 : count));
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_added;
    std::condition_variable m_written;
    std::string m_waiting;
    size_t m_lost = 0;
    bool m_isWriting = false;
};

/// Never destroyed: its thread works until the process ends.
LogWriter &writer()
{
    static auto *const writer = new LogWriter;
    return *writer;
}

} // namespace

void logLine(std::string_view line)
{
    writer().add("quillo-backend: " + std::string(line));
}

void writeLine(std::string_view line)
{
    writer().add(line);
}

void flushLog(std::chrono::milliseconds longest)
{
    writer().flush(longest);
}
