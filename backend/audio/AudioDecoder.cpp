// SPDX-License-Identifier: MIT
#include "audio/AudioDecoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

namespace {

// A file of some bytes may claim to have samples and tracks by the million, for each of which libav keeps an entry. The
// index of the longest recording takes 1.4 MB, and no packet comes near it.
constexpr size_t largestBlock = 16UL * 1024 * 1024;
constexpr int mostTracks = 4;
// An AAC packet holds at least 480 samples of each channel, of which there are at most 96,000 a second.
constexpr int64_t packetsPerSecond = 200;

template <auto Free> struct Deleter {
    template <class T> void operator()(T *object) const { Free(&object); }
};

void freeInput(AVIOContext **context)
{
    av_freep(&(*context)->buffer);
    avio_context_free(context);
}

using Input = std::unique_ptr<AVIOContext, Deleter<freeInput>>;
using Format = std::unique_ptr<AVFormatContext, Deleter<avformat_close_input>>;
using Codec = std::unique_ptr<AVCodecContext, Deleter<avcodec_free_context>>;
using Packet = std::unique_ptr<AVPacket, Deleter<av_packet_free>>;
using Frame = std::unique_ptr<AVFrame, Deleter<av_frame_free>>;
using Converter = std::unique_ptr<SwrContext, Deleter<swr_free>>;

/// Counts what a file takes against what a recording can: a table of some megabytes may send a decoder through the same
/// bytes for hours.
class Budget {
public:
    Budget(size_t bytes, const DecodingLimits &limits)
        : m_bytes(static_cast<int64_t>(bytes)),
          m_packets((limits.longest.count() + 1) * packetsPerSecond),
          m_end(std::chrono::steady_clock::now() + limits.time),
          m_wanted(limits.wanted)
    {
    }

    void spend(const AVPacket &packet)
    {
        m_bytes -= packet.size;
        if (m_bytes < 0 || --m_packets < 0) {
            throw AudioError(AudioError::Kind::TooCostly, "the file names its bytes more than once");
        }
    }

    bool isOver() const { return std::chrono::steady_clock::now() >= m_end || !m_wanted(); }

    void check() const
    {
        if (isOver()) {
            throw AudioError(AudioError::Kind::Stopped, "not decoded in time, or for nobody");
        }
    }

private:
    int64_t m_bytes;
    int64_t m_packets;
    std::chrono::steady_clock::time_point m_end;
    const std::function<bool()> &m_wanted;
};

struct MemoryFile {
    std::string_view data;
    const Budget &budget;
    int64_t position = 0;
};

int readMemory(void *opaque, uint8_t *target, int size)
{
    auto &file = *static_cast<MemoryFile *>(opaque);
    if (file.budget.isOver()) { // libav may read on for long before it returns
        return AVERROR_EXIT;
    }
    const auto left = static_cast<int64_t>(file.data.size()) - file.position;
    const auto count = static_cast<int>(std::min<int64_t>(left, size));
    if (count <= 0) {
        return AVERROR_EOF;
    }
    std::memcpy(target, file.data.data() + file.position, static_cast<size_t>(count));
    file.position += count;
    return count;
}

int64_t seekMemory(void *opaque, int64_t offset, int whence)
{
    auto &file = *static_cast<MemoryFile *>(opaque);
    const auto size = static_cast<int64_t>(file.data.size());
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return size;
    case SEEK_SET:
        break;
    case SEEK_CUR:
        offset += file.position;
        break;
    case SEEK_END:
        offset += size;
        break;
    default:
        return AVERROR(EINVAL);
    }
    if (offset < 0 || offset > size) {
        return AVERROR(EINVAL);
    }
    return file.position = offset;
}

/// A file may name other files as its media; none is ever opened.
int refuseToOpen(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
{
    return AVERROR(EACCES);
}

[[noreturn]] void unsupported(const char *reason)
{
    throw AudioError(AudioError::Kind::Unsupported, reason);
}

Format openFormat(const Input &input)
{
    auto *context = avformat_alloc_context();
    if (!context) {
        throw std::bad_alloc();
    }
    context->pb = input.get();
    context->max_streams = mostTracks;
    context->io_open = refuseToOpen;
    // Frees the context when it fails. Only this demuxer: whatever else libavformat could probe for is refused.
    if (avformat_open_input(&context, "", av_find_input_format("mov"), nullptr) < 0) {
        unsupported("not an MPEG-4 file");
    }
    return Format(context);
}

/// Converts decoded frames, passes them on, and counts them against the limit.
class Resampler {
public:
    Resampler(size_t limit, const SampleSink &sink) : m_limit(limit), m_sink(sink) {}

    void add(const AVFrame &frame)
    {
        if (!m_converter || frame.sample_rate != m_rate || frame.format != m_format ||
            frame.ch_layout.nb_channels != m_channels) {
            flush();
            restart(frame);
        }
        convert(const_cast<const uint8_t **>(frame.extended_data), frame.nb_samples);
    }

    void flush()
    {
        if (m_converter) {
            convert(nullptr, 0);
        }
    }

    size_t count() const { return m_count; }

private:
    void restart(const AVFrame &frame)
    {
        // Not const, and the frame's copied: libswresample 4 takes both as variables.
        AVChannelLayout mono = AV_CHANNEL_LAYOUT_MONO;
        auto layout = frame.ch_layout;
        SwrContext *converter = nullptr;
        swr_alloc_set_opts2(&converter, &mono, AV_SAMPLE_FMT_S16, speechRate, &layout,
                            static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
        m_converter.reset(converter);
        if (!m_converter || swr_init(m_converter.get()) < 0) {
            unsupported("the samples can't be converted");
        }
        m_rate = frame.sample_rate;
        m_format = frame.format;
        m_channels = frame.ch_layout.nb_channels;
    }

    void convert(const uint8_t **data, int count)
    {
        const auto room = swr_get_out_samples(m_converter.get(), count);
        m_samples.resize(static_cast<size_t>(std::max(room, 0)));
        auto *target = reinterpret_cast<uint8_t *>(m_samples.data());
        const auto written = swr_convert(m_converter.get(), &target, room, data, count);
        const auto samples = std::span(m_samples).first(static_cast<size_t>(std::max(written, 0)));
        m_count += samples.size();
        if (m_count > m_limit) {
            throw AudioError(AudioError::Kind::TooLong, "longer than the limit");
        }
        m_sink(samples);
    }

    size_t m_limit;
    const SampleSink &m_sink;
    size_t m_count = 0;
    Converter m_converter;
    int m_rate = 0;
    int m_format = -1;
    int m_channels = 0;
    Samples m_samples;
};

Codec openCodec(const AVStream &stream)
{
    const auto *decoder = avcodec_find_decoder(AV_CODEC_ID_AAC);
    Codec codec(avcodec_alloc_context3(decoder));
    if (stream.codecpar->codec_id != AV_CODEC_ID_AAC || !codec ||
        avcodec_parameters_to_context(codec.get(), stream.codecpar) < 0 ||
        avcodec_open2(codec.get(), decoder, nullptr) < 0) {
        unsupported("not AAC");
    }
    return codec;
}

/// `packet` is null at the end of the stream. A damaged packet is left out, as a player would.
void decodePacket(AVCodecContext &codec, const AVPacket *packet, AVFrame &frame, Resampler &resampler)
{
    if (avcodec_send_packet(&codec, packet) < 0) {
        return;
    }
    while (avcodec_receive_frame(&codec, &frame) >= 0) {
        resampler.add(frame);
    }
}

} // namespace

size_t decodeAudio(std::string_view file, const DecodingLimits &limits, const SampleSink &sink)
{
    [[maybe_unused]] static const auto once = [] { // for the whole process, and not by several threads
        av_log_set_level(AV_LOG_QUIET);
        av_max_alloc(largestBlock);
        return true;
    }();
    constexpr int bufferSize = 32 * 1024;
    Budget budget(file.size(), limits);
    MemoryFile memory{file, budget};
    const Input input(avio_alloc_context(static_cast<uint8_t *>(av_malloc(bufferSize)), bufferSize, 0, &memory,
                                         readMemory, nullptr, seekMemory));
    const Packet packet(av_packet_alloc());
    const Frame frame(av_frame_alloc());
    if (!input || !packet || !frame) {
        throw std::bad_alloc();
    }
    const auto format = openFormat(input);
    const auto stream = av_find_best_stream(format.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (stream < 0) {
        unsupported("no audio track");
    }
    const auto codec = openCodec(*format->streams[stream]);
    Resampler resampler(static_cast<size_t>(limits.longest.count()) * speechRate, sink);
    while (av_read_frame(format.get(), packet.get()) >= 0) {
        budget.spend(*packet);
        budget.check();
        if (packet->stream_index == stream) {
            decodePacket(*codec, packet.get(), *frame, resampler);
        }
        av_packet_unref(packet.get());
    }
    budget.check();
    decodePacket(*codec, nullptr, *frame, resampler);
    resampler.flush();
    if (resampler.count() == 0) {
        unsupported("nothing could be decoded");
    }
    return resampler.count();
}

Samples decodeAudio(std::string_view file, const DecodingLimits &limits)
{
    Samples samples;
    decodeAudio(file, limits,
                [&](std::span<const int16_t> piece) { samples.insert(samples.end(), piece.begin(), piece.end()); });
    return samples;
}
