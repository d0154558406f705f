#include "tests/qtav/Grey.h"

#include <QtAV/FrameReader.h>

#include <algorithm>
#include <cmath>

namespace grey {

namespace {

constexpr double mostLikeness = 100.0;

/// More than noise of coding, in levels.
constexpr int visible = 12;

/// The first line below the number.
int firstLine(const QImage& picture)
{
    return picture.height() / 5;
}

} // namespace

QList<QImage> picturesOf(const QString& path, QtAV::Deinterlacing deinterlacing, const QSize& size)
{
    const auto never = [] { return false; };
    QList<QImage> pictures;
    QtAV::FrameReader reader;
    reader.setDeinterlacing(deinterlacing);
    QString error;
    if (!reader.open(path, never, error)) {
        return pictures;
    }
    for (;;) {
        const QtAV::FrameResult result = reader.next(never);
        if (result.answer != QtAV::FrameAnswer::Frame) {
            return pictures;
        }
        pictures.append(result.frame.toImage(QImage::Format_Grayscale8, size));
    }
}

double likeness(const QImage& a, const QImage& b)
{
    double sum = 0.0;
    const int from = firstLine(a);
    for (int y = from; y < a.height(); ++y) {
        const uchar* lineA = a.constScanLine(y);
        const uchar* lineB = b.constScanLine(y);
        for (int x = 0; x < a.width(); ++x) {
            const int difference = lineA[x] - lineB[x];
            sum += difference * difference;
        }
    }
    const double error = sum / (double(a.width()) * (a.height() - from));
    return error == 0.0 ? mostLikeness : 10.0 * std::log10(255.0 * 255.0 / error);
}

double combing(const QImage& picture)
{
    qint64 count = 0;
    const int from = firstLine(picture);
    for (int y = from; y < picture.height() - 1; ++y) {
        const uchar* above = picture.constScanLine(y - 1);
        const uchar* line = picture.constScanLine(y);
        const uchar* below = picture.constScanLine(y + 1);
        for (int x = 0; x < picture.width(); ++x) {
            const int lower = std::min(above[x], below[x]) - line[x];
            const int higher = line[x] - std::max(above[x], below[x]);
            count += std::max(lower, higher) > visible ? 1 : 0;
        }
    }
    return 100.0 * double(count) / (double(picture.width()) * (picture.height() - 1 - from));
}

} // namespace grey
