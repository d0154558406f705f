#include "qtav/src/RawStreamIndex.h"

#include <algorithm>

namespace QtAV {

std::optional<RawStreamIndex::KeyFrame> RawStreamIndex::atOrBefore(qint64 presentationTicks) const
{
    const auto isAfter = [](qint64 ticks, const KeyFrame& keyFrame) {
        return ticks < keyFrame.presentationTicks;
    };
    const auto next =
        std::upper_bound(m_keyFrames.cbegin(), m_keyFrames.cend(), presentationTicks, isAfter);
    return next == m_keyFrames.cbegin() ? std::nullopt : std::optional(*std::prev(next));
}

} // namespace QtAV
