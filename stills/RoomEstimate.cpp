#include "stills/RoomEstimate.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace stills {

qint64 RoomEstimate::missingFor(int left, qint64 bytes, qint64 missing, qint64 prepared) const
{
    const qint64 average = (m_bytes + bytes) / (m_count + 1);
    return std::max(missing, missing + average * (left - 1) - prepared);
}

QString RoomEstimate::text(qint64 missing, const PicturesLeft& left)
{
    const QString size = QLocale::c().formattedDataSize(missing, 1, QLocale::DataSizeSIFormat);
    const QString text =
        left.isOfVideoAlone
            ? QCoreApplication::translate("stills",
                                          "and about %1 for the %2 pictures left of this video")
            : QCoreApplication::translate("stills", "and about %1 for the %2 pictures left");
    return text.arg(size).arg(left.count);
}

} // namespace stills
