#include "bench/support/BenchMedia.h"

#include <QDir>

namespace bench {

QString mediaPath(const QString& name)
{
    const QString folder = qEnvironmentVariable("MORVANTILE_BENCH_MEDIA",
                                                QStringLiteral(MORVANTILE_BENCH_MEDIA_DEFAULT));
    return QDir(folder).filePath(name);
}

} // namespace bench
