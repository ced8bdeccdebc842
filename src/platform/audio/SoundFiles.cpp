// SPDX-License-Identifier: MIT
#include "platform/audio/SoundFiles.h"

#include "platform/LocalizedError.h"
#include "platform/audio/AacFile.h"
#include "platform/audio/silenceLibav.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <span>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswresample/swresample.h>
}

using namespace Qt::StringLiterals;

namespace {

struct Release {
    void operator()(AVFormatContext *input) const { avformat_close_input(&input); }
    void operator()(AVCodecContext *decoder) const { avcodec_free_context(&decoder); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(SwrContext *resampler) const { swr_free(&resampler); }
};
template <typename T> using Handle = std::unique_ptr<T, Release>;

/// One audio stream of a file, decoded to mono samples of -1 to 1.
class SoundReader {
public:
    SoundReader(const QString &path, int sampleRate) : m_name(QFileInfo(path).fileName()), m_sampleRate(sampleRate)
    {
        AVFormatContext *input = nullptr;
        // As a file, whatever the name looks like: a colon would make it an address.
        const QByteArray address = "file:" + QFile::encodeName(path);
        if (avformat_open_input(&input, address.constData(), nullptr, nullptr) < 0) {
            throw LocalizedError(LocalizedError::tr("%1 is no sound file that can be read.").arg(m_name));
        }
        m_input.reset(input);
        avformat_find_stream_info(input, nullptr);
        const AVCodec *codec = nullptr;
        m_stream = av_find_best_stream(input, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
        if (m_stream < 0) {
            throw LocalizedError(LocalizedError::tr("There is no sound in %1.").arg(m_name));
        }
        m_decoder.reset(avcodec_alloc_context3(codec));
        if (!m_decoder || avcodec_parameters_to_context(m_decoder.get(), stream().codecpar) < 0 ||
            avcodec_open2(m_decoder.get(), codec, nullptr) < 0) {
            throw LocalizedError(LocalizedError::tr("The sound of %1 can't be decoded.").arg(m_name));
        }
    }

    /// Calls back with one piece after the other; false from it stops the reading, and then from here.
    template <typename Take> bool read(const Take &take, const SoundFiles::Progress &progress)
    {
        const Handle<AVPacket> packet(av_packet_alloc());
        while (av_read_frame(m_input.get(), packet.get()) >= 0) {
            const bool isSound = packet->stream_index == m_stream;
            if (isSound) {
                if (!progress(partUntil(*packet))) {
                    throw LocalizedError(LocalizedError::tr("Stopped."));
                }
                avcodec_send_packet(m_decoder.get(), packet.get()); // a damaged packet is left out
            }
            av_packet_unref(packet.get());
            if (isSound && !drain(take)) {
                return false;
            }
        }
        avcodec_send_packet(m_decoder.get(), nullptr);
        return drain(take) && convert(nullptr, take);
    }

private:
    const AVStream &stream() const { return *m_input->streams[m_stream]; }

    /// 0 to 1; -1 where the file does not say. A recorded broadcast starts at any time, not at zero.
    double partUntil(const AVPacket &packet) const
    {
        const auto length = static_cast<double>(m_input->duration);
        if (length <= 0 || packet.pts == AV_NOPTS_VALUE) {
            return -1;
        }
        const auto start = m_input->start_time == AV_NOPTS_VALUE ? 0 : static_cast<double>(m_input->start_time);
        const double time = static_cast<double>(packet.pts) * av_q2d(stream().time_base) * AV_TIME_BASE;
        return std::clamp((time - start) / length, 0.0, 1.0);
    }

    template <typename Take> bool drain(const Take &take)
    {
        while (avcodec_receive_frame(m_decoder.get(), m_frame.get()) >= 0) {
            if (!convert(m_frame.get(), take)) {
                return false;
            }
        }
        return true;
    }

    /// Without a frame: what the resampler still holds.
    template <typename Take> bool convert(const AVFrame *frame, const Take &take)
    {
        if (frame == nullptr && swr_is_initialized(m_resampler.get()) == 0) {
            return true;
        }
        av_frame_unref(m_converted.get());
        av_channel_layout_default(&m_converted->ch_layout, 1);
        m_converted->format = AV_SAMPLE_FMT_FLT;
        m_converted->sample_rate = m_sampleRate;
        const int result = swr_convert_frame(m_resampler.get(), m_converted.get(), frame);
        if (result == AVERROR_INPUT_CHANGED) { // a broadcast goes from stereo to mono and back
            if (!convert(nullptr, take)) {
                return false;
            }
            swr_close(m_resampler.get()); // the next call sets it up for the frame it gets
            return convert(frame, take);
        }
        if (result < 0) {
            throw LocalizedError(LocalizedError::tr("The sound of %1 can't be converted.").arg(m_name));
        }
        const auto count = static_cast<size_t>(m_converted->nb_samples);
        return count == 0 || take(std::span(reinterpret_cast<const float *>(m_converted->data[0]), count));
    }

    QString m_name;
    int m_sampleRate;
    int m_stream = -1;
    Handle<AVFormatContext> m_input;
    Handle<AVCodecContext> m_decoder;
    Handle<SwrContext> m_resampler{swr_alloc()};
    Handle<AVFrame> m_frame{av_frame_alloc()};
    Handle<AVFrame> m_converted{av_frame_alloc()};
};

} // namespace

void SoundFiles::convert(const QString &source, const QString &destination, const AudioSettings &settings,
                         const Progress &progress)
{
    if (const QFile file(source); !file.exists()) {
        throw LocalizedError(LocalizedError::tr("There is no file %1.").arg(source));
    }
    silenceLibav();
    SoundReader reader(source, settings.sampleRate);
    AacFile file(destination, settings);
    bool hasSound = false;
    try {
        const bool isWritten = reader.read(
            [&](std::span<const float> samples) {
                hasSound = true;
                return file.write(samples);
            },
            progress);
        if (!isWritten) {
            throw LocalizedError(LocalizedError::tr("The converted recording can't be written."));
        }
        if (!hasSound) {
            throw LocalizedError(LocalizedError::tr("There is no sound in %1.").arg(QFileInfo(source).fileName()));
        }
    } catch (const LocalizedError &) {
        file.remove();
        throw;
    }
    file.finish();
    if (QFileInfo(destination).size() == 0) {
        file.remove();
        throw LocalizedError(LocalizedError::tr("The converted recording can't be written."));
    }
}
