#pragma once

#include "qtav/player/SoundTempo.h"
#include "qtav/src/Container.h"
#include "qtav/src/FFmpegHandles.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace QtAV {

/// The sound of a file as one stream of samples: interleaved, 16 bit, signed, in the machine's
/// byte order.
///
/// It opens the file for itself: sound is read from another place than pictures, as far ahead as
/// the device wants it, and a seek of the one need not disturb the other.
///
/// Not thread-safe, but tied to no thread.
class SoundFile
{
public:
    /// Opens the first audio stream. False, with a text for people, when there is none or none
    /// that can be decoded.
    [[nodiscard]] bool open(const QString& path, QString& error);

    /// The stream's own, which need no conversion.
    int sampleRate() const { return m_decoder->sample_rate; }

    /// What read() gives from the next seek on: so many seconds of the file in one second of
    /// samples. The pitch stays; where FFmpeg has no filter for that, and beyond what SoundTempo
    /// makes, it goes with the speed, as that of a tape does.
    void setFormat(int sampleRate, int channels, double speed = 1.0);

    /// The next sample that read() gives is the one at this time in seconds; silence where the
    /// sound begins later. False when the file cannot be read.
    [[nodiscard]] bool seek(double seconds);

    /// Fills a buffer with samples. Less than asked for only at the end of the sound.
    [[nodiscard]] qint64 read(char* data, qint64 bytes);

private:
    [[nodiscard]] bool goTo(double seconds);
    [[nodiscard]] bool makeMore();
    [[nodiscard]] bool decodeMore();
    void makeTempo();
    void passOn();
    [[nodiscard]] bool sendPacket();
    void take(const AVFrame& frame);
    void placeAt(double seconds);
    void convert(const AVFrame* frame);
    [[nodiscard]] bool prepareResampler(const AVFrame& frame);
    qint64 samplesFor(double fileSeconds) const;
    int bytesPerFrame() const { return m_channels * int(sizeof(qint16)); }

    std::unique_ptr<Container> m_file;
    int m_stream = -1;
    CodecContextPtr m_decoder;
    Timeline m_timeline;
    ResamplerPtr m_resampler;
    int m_inputRate = 0;
    int m_inputFormat = -1;
    int m_inputChannels = 0;
    int m_rate = 48000;
    int m_channels = 2;
    double m_speed = 1.0;
    double m_tapeSpeed = 1.0;            ///< what of that changes the pitch
    std::unique_ptr<SoundTempo> m_tempo; ///< makes the rest of it; null for none
    double m_start = 0.0;                ///< what was sought, in seconds
    qint64 m_made = 0;                   ///< samples of a channel placed since then
    qint64 m_toSkip = 0;                 ///< samples of a channel that come before it
    bool m_isDrained = false;
    QByteArray m_placed; ///< converted, and in its place in time
    QByteArray m_ready;  ///< the same at the speed that is wanted, and not yet read
    int m_readyFrom = 0; ///< in bytes
};

} // namespace QtAV
