#include "qtav/player/SoundFile.h"

#include "qtav/src/FFmpegLog.h"
#include "qtav/src/PacketHandle.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace QtAV {

namespace {

/// Decoding begins this much earlier: sound codecs need some packets to settle.
constexpr double leadSeconds = 0.3;

/// How far before the target to land if a container's seek ends behind it.
constexpr double stepsBackSeconds[] = {0.0, 2.0, 10.0};

/// Sound whose times deviate more than this is moved to where they say.
constexpr double mostOffsetSeconds = 0.05;

/// Maximum gap between the times of two frames, which damaged times may claim to be any length.
constexpr double longestGapSeconds = 24 * 3600.0;

/// What a frame of sound may declare. Others are damaged, and would take any amount of memory: at
/// one sample per second, a short frame lasts for hours, and at a thousand million, a resampler's
/// filter has as many coefficients.
constexpr int lowestRate = 1000;
constexpr int highestRate = 1000000;
constexpr int longestFrameSeconds = 10;

bool isPlausible(const AVFrame& frame)
{
    return frame.sample_rate >= lowestRate && frame.sample_rate <= highestRate &&
           frame.nb_samples / frame.sample_rate < longestFrameSeconds;
}

} // namespace

bool SoundFile::open(const QString& path, QString& error)
{
    // If the disk does not answer, the sound thread is abandoned: see SoundPlayer.
    const IsCancelled never = [] { return false; };
    m_file = Container::open(path, never, error);
    if (!m_file) {
        return false;
    }
    error = QCoreApplication::translate("QtAV::AVPlayer", "The sound cannot be decoded.");
    if (m_file->audioStreams().isEmpty()) {
        return false;
    }
    m_stream = m_file->audioStreams().constFirst();
    m_timeline = m_file->timeline(m_stream);
    const AVCodecParameters* parameters = m_file->stream(m_stream).codecpar;
    const AVCodec* codec = avcodec_find_decoder(parameters->codec_id);
    m_decoder.reset(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!m_decoder || avcodec_parameters_to_context(m_decoder.get(), parameters) < 0) {
        return false;
    }
    m_decoder->pkt_timebase = m_timeline.timeBase();
    if (avcodec_open2(m_decoder.get(), codec, nullptr) < 0) {
        return false;
    }
    error.clear();
    return true;
}

void SoundFile::setFormat(int sampleRate, int channels, double speed)
{
    m_rate = sampleRate;
    m_channels = channels;
    m_speed = speed;
    m_resampler.reset();
    makeTempo();
}

/// A new object, because the old one still holds sound from before.
void SoundFile::makeTempo()
{
    const bool isWanted = m_speed != 1.0 && m_speed >= SoundTempo::slowestSpeed &&
                          m_speed <= SoundTempo::fastestSpeed;
    m_tempo = isWanted ? SoundTempo::make(m_rate, m_channels, m_speed) : nullptr;
    m_tapeSpeed = m_tempo ? 1.0 : m_speed;
}

bool SoundFile::seek(double seconds)
{
    m_start = seconds;
    for (const double back : stepsBackSeconds) {
        const double landing = seconds - leadSeconds - back;
        if (!goTo(landing)) {
            continue;
        }
        avcodec_flush_buffers(m_decoder.get());
        m_resampler.reset();
        makeTempo();
        m_silence = 0;
        m_placed.clear();
        m_ready.clear();
        m_readyFrom = 0;
        m_made = -1; // the first frame determines its own position
        m_toSkip = 0;
        m_isDrained = false;
        if (!decodeMore()) {
            continue;
        }
        const bool startsBehind = landing > 0.0 && m_toSkip == 0;
        if (!startsBehind || back == stepsBackSeconds[std::size(stepsBackSeconds) - 1]) {
            return true;
        }
    }
    return false;
}

bool SoundFile::goTo(double seconds)
{
    const auto ms = static_cast<qint64>(std::max(0.0, seconds) * 1000.0);
    // Seeks in PCM files reach exactly the requested tick, and a millisecond has many.
    return m_file->seekNear(m_stream, m_timeline.lastTickOf(ms - 1)) ||
           (seconds <= 0.0 && m_file->reopen());
}

qint64 SoundFile::read(char* data, qint64 bytes)
{
    qint64 done = 0;
    while (done < bytes) {
        const qint64 available = m_ready.size() - m_readyFrom;
        if (available == 0) {
            if (!makeMore()) {
                break;
            }
            continue;
        }
        const qint64 part = std::min(available, bytes - done);
        std::memcpy(data + done, m_ready.constData() + m_readyFrom, size_t(part));
        m_readyFrom += int(part);
        done += part;
    }
    return done;
}

/// Replaces what was read; returns false at the end.
bool SoundFile::makeMore()
{
    m_ready.clear();
    m_readyFrom = 0;
    const bool isWaiting = m_silence > 0 || !m_placed.isEmpty();
    if (isWaiting || decodeMore()) {
        passOn();
        return true;
    }
    if (m_tempo) {
        m_tempo->finish(m_ready);
    }
    return !m_ready.isEmpty();
}

/// Decodes one more frame; returns false at the end.
bool SoundFile::decodeMore()
{
    const FramePtr frame = makeFrame();
    for (;;) {
        const int result = avcodec_receive_frame(m_decoder.get(), frame.get());
        if (result >= 0) {
            take(*frame);
            return true;
        }
        if (result == AVERROR_EOF || m_isDrained) {
            return false;
        }
        // The error of a damaged packet does not affect the next one.
        if (!sendPacket()) {
            m_isDrained = true;
        }
    }
}

/// Returns false when no packet is left and the decoder drains.
bool SoundFile::sendPacket()
{
    PacketPtr packet;
    for (;;) {
        const PacketAnswer answer = m_file->read(packet);
        if (answer == PacketAnswer::Failed && m_file->canGoOn()) {
            continue;
        }
        const bool isSound = answer == PacketAnswer::Packet && packet->stream_index == m_stream;
        if (isSound || answer != PacketAnswer::Packet) {
            avcodec_send_packet(m_decoder.get(), isSound ? packet.get() : nullptr);
            return isSound;
        }
    }
}

/// Makes the next samples ready: a second of silence, or those behind it.
void SoundFile::passOn()
{
    const qint64 silence = std::min<qint64>(m_silence, m_rate);
    m_silence -= silence;
    const QByteArray samples = silence > 0 ? QByteArray(int(silence) * bytesPerFrame(), '\0')
                                           : std::exchange(m_placed, {});
    // Without SoundTempo there is no sound, but the next seek creates another one.
    if (!m_tempo) {
        m_ready = samples;
    } else if (!m_tempo->put(samples, m_ready)) {
        qCWarning(lcQtAV, "No memory for sound at another speed.");
    }
}

void SoundFile::take(const AVFrame& frame)
{
    if (!isPlausible(frame) || !prepareResampler(frame)) {
        return;
    }
    if (frame.best_effort_timestamp != AV_NOPTS_VALUE) {
        placeAt(m_timeline.seconds(frame.best_effort_timestamp));
    } else if (m_made < 0) {
        m_made = 0;
    }
    convert(&frame);
}

/// How many output samples cover a duration of the file.
qint64 SoundFile::samplesFor(double fileSeconds) const
{
    return std::llround(fileSeconds * m_rate / m_tapeSpeed);
}

/// Places the next converted samples at their time: behind silence, or truncated at their
/// beginning.
void SoundFile::placeAt(double seconds)
{
    const bool isFirst = m_made < 0;
    const auto given = double(std::max<qint64>(0, m_made) - m_toSkip);
    const double reached = m_start + m_tapeSpeed * given / m_rate;
    const double offset = seconds - reached;
    if (isFirst) {
        m_made = 0;
    } else if (std::abs(offset) < mostOffsetSeconds) {
        return;
    }
    const qint64 samples = samplesFor(std::min(std::abs(offset), longestGapSeconds));
    if (offset > 0.0) {
        const qint64 skipped = std::min(samples, m_toSkip);
        m_toSkip -= skipped;
        m_silence = samples - skipped;
        m_made += m_silence;
    } else {
        m_toSkip += samples;
    }
}

void SoundFile::convert(const AVFrame* frame)
{
    const int most = swr_get_out_samples(m_resampler.get(), frame->nb_samples);
    if (most <= 0) {
        return;
    }
    QByteArray samples(most * bytesPerFrame(), Qt::Uninitialized);
    auto* out = reinterpret_cast<uint8_t*>(samples.data());
    const int made =
        swr_convert(m_resampler.get(), &out, most,
                    const_cast<const uint8_t**>(frame->extended_data), frame->nb_samples);
    if (made <= 0) {
        return;
    }
    const qint64 skipped = std::min<qint64>(m_toSkip, made);
    m_toSkip -= skipped;
    m_made += made - skipped;
    m_placed.append(samples.constData() + skipped * bytesPerFrame(),
                    int(made - skipped) * bytesPerFrame());
}

bool SoundFile::prepareResampler(const AVFrame& frame)
{
    const bool fits = m_resampler && frame.sample_rate == m_inputRate &&
                      frame.format == m_inputFormat &&
                      frame.ch_layout.nb_channels == m_inputChannels;
    if (fits) {
        return true;
    }
    AVChannelLayout in = frame.ch_layout;
    if (in.order == AV_CHANNEL_ORDER_UNSPEC) {
        av_channel_layout_default(&in, frame.ch_layout.nb_channels);
    }
    AVChannelLayout out{};
    av_channel_layout_default(&out, m_channels);
    SwrContext* context = nullptr;
    // Declaring a higher input rate makes the samples take less time.
    const auto inputRate = static_cast<int>(std::lround(frame.sample_rate * m_tapeSpeed));
    const int result =
        swr_alloc_set_opts2(&context, &out, AV_SAMPLE_FMT_S16, m_rate, &in,
                            static_cast<AVSampleFormat>(frame.format), inputRate, 0, nullptr);
    m_resampler.reset(context);
    if (result < 0 || swr_init(m_resampler.get()) < 0) {
        m_resampler.reset();
        return false;
    }
    m_inputRate = frame.sample_rate;
    m_inputFormat = frame.format;
    m_inputChannels = frame.ch_layout.nb_channels;
    return true;
}

} // namespace QtAV
