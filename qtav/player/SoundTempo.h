#pragma once

#include "qtav/src/FilterLibrary.h"

#include <QByteArray>

#include <memory>

namespace QtAV {

/// Makes sound last longer or shorter without changing its pitch, by FFmpeg's filter `atempo`.
///
/// Samples are interleaved, of 16 bits, signed, in the machine's byte order. One thread at a time
/// may use an object.
class SoundTempo
{
public:
    static constexpr double slowestSpeed = 0.5;
    static constexpr double fastestSpeed = 2.0;

    /// @param speed  how many seconds of sound are given in one: from slowestSpeed to fastestSpeed
    /// @return null where FFmpeg has no such filter, or no memory is left
    [[nodiscard]] static std::unique_ptr<SoundTempo> make(int sampleRate, int channels,
                                                          double speed);

    /// Takes samples, whole ones of all channels, and appends to `out` what has become of those
    /// taken so far. The last of them come with later ones, or with finish(). False when that
    /// failed.
    [[nodiscard]] bool put(const QByteArray& samples, QByteArray& out);
    /// No more samples come: appends the rest. Only the first call gives something.
    void finish(QByteArray& out);

private:
    SoundTempo(int sampleRate, int channels);

    [[nodiscard]] bool build(double speed);
    void pull(QByteArray& out);
    int bytesPerFrame() const { return m_channels * int(sizeof(qint16)); }

    int m_rate;
    int m_channels;
    FilterGraphPtr m_graph;
    AVFilterContext* m_source = nullptr; ///< of m_graph
    AVFilterContext* m_sink = nullptr;   ///< of m_graph
    qint64 m_taken = 0;                  ///< samples of a channel
    bool m_isFinished = false;
};

} // namespace QtAV
