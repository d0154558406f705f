#include "tests/video/MakeVideo.h"

#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"

#include <QFile>
#include <QtGlobal>

namespace {

constexpr qint64 slowVideoBytes = qint64(64) << 30;

void encode(const QString& path, int frames, int frameMs, const QStringList& codec)
{
    const QStringList input{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                            QStringLiteral("testsrc2=s=64x48:r=1000/%1").arg(frameMs)};
    const QStringList output{QStringLiteral("-frames:v"),
                             QString::number(frames),
                             QStringLiteral("-video_track_timescale"),
                             QStringLiteral("1000"),
                             QStringLiteral("-f"),
                             QStringLiteral("mov"),
                             path};
    const QStringList quiet{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y")};
    const testsupport::ProgramResult result =
        testsupport::runProgram(QStringLiteral("ffmpeg"), quiet + input + codec + output);
    if (!result.succeeded()) {
        qFatal("ffmpeg made no video: %s", result.standardError.constData());
    }
}

} // namespace

void testsupport::makeVideo(const QString& path, int frames, int frameMs)
{
    encode(path, frames, frameMs,
           {QStringLiteral("-c:v"), QStringLiteral("mjpeg"), QStringLiteral("-pix_fmt"),
            QStringLiteral("yuvj420p")});
}

void testsupport::makeVideoWithOneKeyFrame(const QString& path, int frames, int frameMs)
{
    encode(path, frames, frameMs,
           {QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
            QStringLiteral("yuv420p"), QStringLiteral("-bf"), QStringLiteral("0"),
            QStringLiteral("-x264-params"), QStringLiteral("keyint=100000:scenecut=0")});
}

void testsupport::makeSlowVideo(const QString& path)
{
    QFile file(path);
    if (!QFile::copy(samplePath(QStringLiteral("h264_bframes.mkv")), path) ||
        !file.resize(slowVideoBytes)) {
        qFatal("cannot make a slow video: %s", qUtf8Printable(file.errorString()));
    }
}
