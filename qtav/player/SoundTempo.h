#pragma once

#include "qtav/src/FilterLibrary.h"

#include <QByteArray>

#include <memory>

namespace QtAV {

/// Stretches or shortens sound without changing its pitch, using FFmpeg's filter `atempo`.
///
/// Samples are interleaved, of 16 bits, signed, in the machine's byte order. One thread at a time
/// may use an object.
class SoundTempo
{
public:
    static constexpr double slowestSpeed = 0.5;
    static constexpr double fastestSpeed = 2.0;

    /// @param speed  seconds of sound per second of output: from slowestSpeed to fastestSpeed
    /// @return null if FFmpeg lacks the filter or memory runs out
    [[nodiscard]] static std::unique_ptr<SoundTempo> make(int sampleRate, int channels,
                                                          double speed);

    /// Takes samples, complete for all channels, and appends the output available so far to `out`.
    /// The rest follows with later samples or with finish(). Returns false if that failed.
    [[nodiscard]] bool put(const QByteArray& samples, QByteArray& out);
    /// Ends the input and appends the rest. Only the first call has an effect.
    void finish(QByteArray& out);

private:
    SoundTempo(int sampleRate, int channels);

    [[nodiscard]] bool build(double speed);
    void pull(QByteArray& out);
    int bytesPerFrame() const { return m_channels * int(sizeof(qint16)); }

    int m_rate;
    int m_channels;
    FilterGraphPtr m_graph;
    AVFilterContext* m_source = nullptr; ///< owned by m_graph
    AVFilterContext* m_sink = nullptr;   ///< owned by m_graph
    qint64 m_taken = 0;                  ///< in samples per channel
    bool m_isFinished = false;
};

} // namespace QtAV
