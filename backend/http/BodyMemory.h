// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <utility>

/// The bytes of request bodies that a server may hold at a time, however many clients send. I/O thread only.
class BodyMemory {
public:
    explicit BodyMemory(size_t most) : m_left(most) {}

    bool has(size_t bytes) const { return bytes <= m_left; }

    /// What one body takes, until release() or its destruction.
    class Share {
    public:
        explicit Share(BodyMemory &memory) : m_memory(memory) {}
        ~Share() { release(); }
        Share(const Share &) = delete;
        Share &operator=(const Share &) = delete;

        /// False, without any effect, when there is not so much. `bytes` is never less than before.
        bool growTo(size_t bytes)
        {
            if (!m_memory.has(bytes - m_bytes)) {
                return false;
            }
            m_memory.m_left -= bytes - m_bytes;
            m_bytes = bytes;
            return true;
        }

        void release() { m_memory.m_left += std::exchange(m_bytes, 0); }

    private:
        BodyMemory &m_memory;
        size_t m_bytes = 0;
    };

private:
    size_t m_left;
};
