#include "tests/ui/filmstrip/Snapshots.h"

QImage testsupport::patterned(QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_RGBA64);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int value = (x * 7919 + y * 104729) % 65536;
            image.setPixelColor(
                x, y,
                QColor::fromRgba64(qRgba64(value, 65535 - value, value / 2, 65535 - x * 300)));
        }
    }
    return image.convertToFormat(format);
}

CapturedPicture testsupport::pictureAt(double seconds, QSize size)
{
    CapturedPicture picture;
    picture.image = patterned(size, QImage::Format_RGB888);
    picture.source.video = QStringLiteral("/videos/clip.mp4");
    picture.source.seconds = seconds;
    picture.source.frameSize = size;
    return picture;
}

KeptSnapshot testsupport::fullNote(const QString& id)
{
    KeptSnapshot note;
    note.id = id;
    note.takenAt = QDateTime::fromMSecsSinceEpoch(QDateTime::currentMSecsSinceEpoch(), Qt::UTC);
    note.profileId = QStringLiteral("{profile}");
    note.profileName = QStringLiteral("Big \u201cone\u201d");
    note.source.video = QStringLiteral("/videos/a b\u00e4.mp4");
    note.source.seconds = 12.3456789;
    note.source.frameNumber = 308;
    note.source.tickNumerator = 1;
    note.source.tickDenominator = 90000;
    note.source.frameSize = {1920, 1080};
    note.source.recording.make = QStringLiteral("Make");
    note.source.recording.model = QStringLiteral("Model");
    note.source.recording.author = QStringLiteral("Author");
    note.source.recording.start = Recording::Moment{
        QDateTime(QDate(2024, 5, 6), QTime(12, 34, 56, 520), Qt::OffsetFromUTC, 7200), true};
    note.source.recording.place = Recording::Place{48.2085, 16.373, 171.0};
    note.colours.transfer = QtAV::StoredColours::Transfer::Hlg;
    note.colours.primaries = QtAV::StoredColours::Primaries::Bt2020;
    return note;
}
