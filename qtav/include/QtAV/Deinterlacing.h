#pragma once

#include <QMetaType>
#include <QString>

namespace QtAV {

/// How to treat pictures whose lines alternate between two moments.
enum class Deinterlacing {
    /// A picture that is marked as interlaced and combs is made whole from its neighbours. All
    /// others stay as they are, whether they are marked or not.
    Automatic,
    /// Every picture is treated as interlaced, regardless of its mark and content. For videos whose
    /// marks are wrong; sharp pictures lose detail.
    On,
    /// Pictures stay as they are decoded.
    Off,
};

/// The value for a name used in settings and options: "auto", "on" or "off". Automatic for any
/// other name.
[[nodiscard]] Deinterlacing deinterlacingNamed(const QString& name);

} // namespace QtAV

Q_DECLARE_METATYPE(QtAV::Deinterlacing)
