#pragma once

#include <QMetaType>
#include <QString>

namespace QtAV {

/// What becomes of pictures whose lines belong to two moments in turn.
enum class Deinterlacing {
    /// A picture that is marked as interlaced and combs is made whole from its neighbours. All
    /// others stay as they are, be they marked or not.
    Automatic,
    /// Each picture is taken for an interlaced one, whatever it says and shows. For videos whose
    /// marks are wrong; sharp pictures lose detail.
    On,
    /// Pictures stay as they are decoded.
    Off,
};

/// The one of that name, as settings and options have it: "auto", "on" or "off". Automatic for any
/// other name.
[[nodiscard]] Deinterlacing deinterlacingNamed(const QString& name);

} // namespace QtAV

Q_DECLARE_METATYPE(QtAV::Deinterlacing)
