// SPDX-License-Identifier: MIT
#include "platform/audio/AacFile.h"

#include "platform/LocalizedError.h"
#include "platform/audio/silenceLibav.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr int outputBufferSize = 4096; // holds a packet; each is written as it comes
constexpr int samplesPerFrame = 1024;
constexpr int maxBitsPerFrame = 6144; // of one AAC channel

LocalizedError cantStart()
{
    return LocalizedError(LocalizedError::tr("Couldn't start the microphone."));
}

/// Opening the encoder refuses other sample rates by itself, but not a bit rate that it can't reach.
bool canEncode(const AudioSettings &settings)
{
    return settings.formatId == "aac " && settings.channels == 1 && settings.bitRate > 0 &&
           int64_t(settings.bitRate) * samplesPerFrame <= int64_t(maxBitsPerFrame) * settings.sampleRate;
}

#if LIBAVFORMAT_VERSION_MAJOR >= 61
using WrittenByte = const uint8_t;
#else
using WrittenByte = uint8_t;
#endif

int writeFile(void *file, WrittenByte *bytes, int size)
{
    const auto written = static_cast<QFile *>(file)->write(reinterpret_cast<const char *>(bytes), size);
    return written == size ? size : AVERROR(EIO);
}

int64_t seekFile(void *opaque, int64_t offset, int whence)
{
    auto *file = static_cast<QFile *>(opaque);
    if (whence == AVSEEK_SIZE) {
        return file->size();
    }
    return whence == SEEK_SET && file->seek(offset) ? offset : AVERROR(EINVAL);
}

} // namespace

void AacFile::Release::operator()(AVCodecContext *encoder) const
{
    avcodec_free_context(&encoder);
}

void AacFile::Release::operator()(AVFormatContext *container) const
{
    avformat_free_context(container);
}

void AacFile::Release::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

void AacFile::Release::operator()(AVIOContext *output) const
{
    av_freep(&output->buffer);
    avio_context_free(&output);
}

void AacFile::Release::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

AacFile::AacFile(const QString &path, const AudioSettings &settings) : m_file(path)
{
    silenceLibav();
    openEncoder(settings);
    openContainer();
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                     QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        qWarning("The recording's file can't be created: %ls", qUtf16Printable(m_file.errorString()));
        throw cantStart();
    }
}

AacFile::~AacFile()
{
    finish();
}

void AacFile::openEncoder(const AudioSettings &settings)
{
    const AVCodec *codec = avcodec_find_encoder(AV_CODEC_ID_AAC);
    m_encoder.reset(codec ? avcodec_alloc_context3(codec) : nullptr);
    m_frame.reset(av_frame_alloc());
    m_packet.reset(av_packet_alloc());
    if (!m_encoder || !m_frame || !m_packet || !canEncode(settings)) {
        throw cantStart();
    }
    m_encoder->sample_fmt = AV_SAMPLE_FMT_FLTP;
    m_encoder->sample_rate = settings.sampleRate;
    m_encoder->time_base = {1, settings.sampleRate};
    m_encoder->bit_rate = settings.bitRate;
    m_encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_channel_layout_default(&m_encoder->ch_layout, settings.channels);
    if (avcodec_open2(m_encoder.get(), codec, nullptr) < 0) {
        throw cantStart();
    }
    m_frame->format = m_encoder->sample_fmt;
    m_frame->nb_samples = m_encoder->frame_size;
    m_frame->sample_rate = settings.sampleRate;
    if (av_channel_layout_copy(&m_frame->ch_layout, &m_encoder->ch_layout) < 0 ||
        av_frame_get_buffer(m_frame.get(), 0) < 0) {
        throw cantStart();
    }
}

void AacFile::openContainer()
{
    AVFormatContext *container = nullptr;
    avformat_alloc_output_context2(&container, nullptr, "ipod", nullptr);
    m_container.reset(container);
    auto *buffer = static_cast<uint8_t *>(av_malloc(outputBufferSize));
    m_output.reset(avio_alloc_context(buffer, outputBufferSize, 1, &m_file, nullptr, writeFile, seekFile));
    AVStream *stream = m_container ? avformat_new_stream(m_container.get(), nullptr) : nullptr;
    if (!m_output || !stream || avcodec_parameters_from_context(stream->codecpar, m_encoder.get()) < 0) {
        throw cantStart();
    }
    stream->time_base = m_encoder->time_base;
    m_container->pb = m_output.get();
}

bool AacFile::write(std::span<const float> samples)
{
    if (!m_file.isOpen() || m_failed) {
        return false;
    }
    m_failed = !m_started && !writeHeader();
    while (!m_failed && !samples.empty()) {
        const size_t count = std::min(samples.size(), size_t(m_encoder->frame_size - m_pending));
        std::ranges::copy(samples.first(count), reinterpret_cast<float *>(m_frame->data[0]) + m_pending);
        samples = samples.subspan(count);
        m_pending += int(count);
        m_failed = m_pending == m_encoder->frame_size && !encodePending();
    }
    return !m_failed;
}

bool AacFile::writeHeader()
{
    m_started = true;
    AVDictionary *options = nullptr; // counted in samples, the length is exact; the usual milliseconds cut it
    av_dict_set_int(&options, "movie_timescale", m_encoder->sample_rate, 0);
    const int result = avformat_write_header(m_container.get(), &options);
    av_dict_free(&options);
    return result >= 0;
}

bool AacFile::encodePending()
{
    m_frame->nb_samples = m_pending;
    m_frame->pts = m_encoded;
    m_encoded += m_pending;
    m_pending = 0;
    return encode(m_frame.get()) && av_frame_make_writable(m_frame.get()) >= 0;
}

bool AacFile::encode(const AVFrame *frame)
{
    if (avcodec_send_frame(m_encoder.get(), frame) < 0) {
        return false;
    }
    int result = 0;
    while ((result = avcodec_receive_packet(m_encoder.get(), m_packet.get())) >= 0) {
        av_packet_rescale_ts(m_packet.get(), m_encoder->time_base, m_container->streams[0]->time_base);
        if (av_write_frame(m_container.get(), m_packet.get()) < 0) {
            return false;
        }
        av_packet_unref(m_packet.get());
    }
    return (result == AVERROR(EAGAIN) || result == AVERROR_EOF) && m_output->error >= 0;
}

bool AacFile::complete()
{
    return (m_pending == 0 || encodePending()) && encode(nullptr) && av_write_trailer(m_container.get()) >= 0 &&
           m_output->error >= 0;
}

void AacFile::finish()
{
    if (!m_file.isOpen()) {
        return;
    }
    if (m_started && (m_failed || !complete())) {
        qWarning("The recording can't be completed: %ls", qUtf16Printable(m_file.errorString()));
        m_file.resize(0);
    }
    m_file.close();
}

void AacFile::remove()
{
    m_file.remove();
}
