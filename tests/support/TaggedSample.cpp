#include "tests/support/TaggedSample.h"

#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"

bool testsupport::tagSample(const QString& sample, const QString& path, const QStringList& tags)
{
    QStringList arguments{QStringLiteral("-nostdin"),
                          QStringLiteral("-loglevel"),
                          QStringLiteral("error"),
                          QStringLiteral("-i"),
                          samplePath(sample),
                          QStringLiteral("-c"),
                          QStringLiteral("copy"),
                          QStringLiteral("-movflags"),
                          QStringLiteral("use_metadata_tags")};
    for (const QString& tag : tags) {
        const bool isOfVideo = tag.startsWith(QLatin1String("s:"));
        arguments << (isOfVideo ? QStringLiteral("-metadata:s:v:0") : QStringLiteral("-metadata"))
                  << (isOfVideo ? tag.mid(2) : tag);
    }
    const ProgramResult result = runProgram(QStringLiteral("ffmpeg"), arguments << path);
    if (!result.succeeded()) {
        qWarning("%s", result.standardError.constData());
    }
    return result.succeeded();
}
