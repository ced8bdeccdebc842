// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Microphone.h"

#include <QFile>

#include <cstdint>
#include <memory>
#include <span>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVIOContext;
struct AVPacket;

/// A new MPEG-4 file that sound is encoded to as AAC-LC while it is heard. One thread at a time.
class AacFile {
public:
    /// Creates the file, empty, mode 0600, with exactly this name. Throws LocalizedError when it exists already or
    /// can't be made, and when the settings are not mono AAC at a rate and bit rate the encoder has; no file is left
    /// then.
    AacFile(const QString &path, const AudioSettings &settings);
    AacFile(const AacFile &) = delete;
    AacFile &operator=(const AacFile &) = delete;
    /// Finishes the file.
    ~AacFile();

    QString path() const { return m_file.fileName(); }

    /// Encodes samples of -1 to 1; the file's header is written with the first ones. False when they can't be encoded
    /// or written, and then for all that follow.
    bool write(std::span<const float> samples);

    /// Writes what is still in the encoder, the index, and closes. A file without samples stays empty; one that can't
    /// be completed (disk full) is made empty, since nothing could read it. A second call does nothing.
    void finish();

    /// Closes the file and removes it.
    void remove();

private:
    struct Release {
        void operator()(AVCodecContext *encoder) const;
        void operator()(AVFormatContext *container) const;
        void operator()(AVFrame *frame) const;
        void operator()(AVIOContext *output) const;
        void operator()(AVPacket *packet) const;
    };
    template <typename T> using Handle = std::unique_ptr<T, Release>;

    void openEncoder(const AudioSettings &settings);
    void openContainer();
    bool writeHeader();
    bool encode(const AVFrame *frame);
    bool encodePending();
    bool complete();

    QFile m_file;
    Handle<AVCodecContext> m_encoder;
    Handle<AVIOContext> m_output;
    Handle<AVFormatContext> m_container;
    Handle<AVFrame> m_frame;
    Handle<AVPacket> m_packet;
    int m_pending = 0; // samples in m_frame
    int64_t m_encoded = 0;
    bool m_started = false;
    bool m_failed = false;
};
