#pragma once

#include <QVector>

#include <optional>

namespace QtAV {

/// Where the key frames of a raw stream are, which has no container that would tell.
class RawStreamIndex
{
public:
    struct KeyFrame
    {
        qint64 position; ///< in bytes
        qint64 decodingTicks;
        qint64 presentationTicks;
    };

    /// Key frames are added in file order.
    void add(const KeyFrame& keyFrame) { m_keyFrames.append(keyFrame); }

    /// The last key frame shown at or before a time; nothing when the first one is shown later.
    [[nodiscard]] std::optional<KeyFrame> atOrBefore(qint64 presentationTicks) const;

    /// The number of frames, and so the length of the stream in ticks.
    qint64 lengthTicks() const { return m_lengthTicks; }
    void setLength(qint64 ticks) { m_lengthTicks = ticks; }

private:
    QVector<KeyFrame> m_keyFrames;
    qint64 m_lengthTicks = 0;
};

} // namespace QtAV
