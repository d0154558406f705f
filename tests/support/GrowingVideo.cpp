#include "tests/support/GrowingVideo.h"

#include "tests/support/Samples.h"

#include <QFile>

namespace testsupport {

bool writeGrowingVideo(int number, const QString& path)
{
    QFile sample(samplePath(QStringLiteral("mjpeg.avi")));
    if (!sample.open(QIODevice::ReadOnly)) {
        return false;
    }
    QByteArray content = sample.readAll();
    const QByteArray startOfFrame("\xff\xc0\x00\x11\x08", 5);
    const QByteArray size("\x03\xe8\x03\xe8", 4);
    int count = 0;
    for (int at = content.indexOf(startOfFrame); at >= 0;
         at = content.indexOf(startOfFrame, at + 1), ++count) {
        if (count >= number) {
            content.replace(at + startOfFrame.size(), size.size(), size);
        }
    }
    QFile file(path);
    return count > number && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

} // namespace testsupport
