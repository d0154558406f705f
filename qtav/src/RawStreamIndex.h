#pragma once

#include <QVector>

#include <optional>

namespace QtAV {

/// Positions of the key frames of a raw stream, which has no container to list them.
class RawStreamIndex
{
public:
    struct KeyFrame
    {
        qint64 position; ///< in bytes
        qint64 decodingTicks;
        qint64 presentationTicks;
    };

    /// Adds a key frame; call it in file order.
    void add(const KeyFrame& keyFrame) { m_keyFrames.append(keyFrame); }

    /// The last key frame shown at or before a time; nothing if the first one is shown later.
    [[nodiscard]] std::optional<KeyFrame> atOrBefore(qint64 presentationTicks) const;

    /// The number of frames, and so the length of the stream in ticks.
    qint64 lengthTicks() const { return m_lengthTicks; }
    void setLength(qint64 ticks) { m_lengthTicks = ticks; }

private:
    QVector<KeyFrame> m_keyFrames;
    qint64 m_lengthTicks = 0;
};

} // namespace QtAV
