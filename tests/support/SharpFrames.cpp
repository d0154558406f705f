#include "tests/support/SharpFrames.h"

#include "tests/support/RunProgram.h"
#include "tests/support/TestDir.h"

namespace testsupport {

QString makeVideoOfSharpFrames(const TestDir& dir)
{
    const QString path = dir.filePath(QStringLiteral("made.mkv"));
    const ProgramResult made = runProgram(
        QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
         QStringLiteral("lavfi"), QStringLiteral("-i"),
         QStringLiteral("testsrc2=size=320x180:rate=25:duration=4"), QStringLiteral("-vf"),
         QStringLiteral("negate=enable='gte(n,75)',"
                        "avgblur=sizeX=9:sizeY=1:enable='not(eq(mod(n,10),5))',"
                        "drawbox=color=black:thickness=fill:enable='between(n,40,59)'"),
         QStringLiteral("-c:v"), QStringLiteral("ffv1"), path});
    if (!made.succeeded()) {
        qFatal("no video: %s", made.standardError.constData());
    }
    return path;
}

} // namespace testsupport
