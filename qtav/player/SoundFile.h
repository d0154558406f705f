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
/// It opens the file a second time: sound is read at another place than pictures, as far ahead as
/// the device needs it, and seeks of one do not disturb the other.
///
/// Not thread-safe, but tied to no thread.
class SoundFile
{
public:
    /// Opens the first audio stream. Returns false, with a text for people, if there is none that
    /// can be decoded.
    [[nodiscard]] bool open(const QString& path, QString& error);

    /// The sample rate and channels of the stream, which need no conversion.
    int sampleRate() const { return m_decoder->sample_rate; }

    /// Format and speed of what read() gives, from the next seek on; the speed is seconds of the
    /// file per second of samples. The pitch is kept. Without an FFmpeg filter for that, and beyond
    /// the range of SoundTempo, it follows the speed, as on a tape.
    void setFormat(int sampleRate, int channels, double speed = 1.0);

    /// Sets the time in seconds of the next sample that read() gives; silence where the sound
    /// begins later. Returns false if the file cannot be read.
    [[nodiscard]] bool seek(double seconds);

    /// Fills a buffer with samples. Gives fewer than requested only at the end of the sound.
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
    double m_tapeSpeed = 1.0;            ///< the part of the speed that changes the pitch
    std::unique_ptr<SoundTempo> m_tempo; ///< handles the rest of the speed; null if not needed
    double m_start = 0.0;                ///< the position of the last seek, in seconds
    qint64 m_made = 0;                   ///< samples per channel placed since then
    qint64 m_toSkip = 0;                 ///< samples per channel before it that are skipped
    bool m_isDrained = false;
    qint64 m_silence = 0; ///< samples per channel that come before m_placed
    QByteArray m_placed;  ///< converted samples of one frame
    QByteArray m_ready;   ///< samples at the requested speed, not yet read
    int m_readyFrom = 0;  ///< read position in m_ready, in bytes
};

} // namespace QtAV
