#include "tests/qtav/Cores.h"

#include "tests/qtav/Decoding.h"

#include <QDir>
#include <QTest>

using namespace decoding;

namespace {

/// How many threads this process has.
int threads()
{
    return QDir(QStringLiteral("/proc/self/task"))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
        .size();
}

/// The number of threads that a decoder creates on a machine with this many cores, in addition to
/// those of the open file.
int threadsOfDecoder(int cores)
{
    const PretendedCores pretended(cores);
    Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    const int opened = threads();
    player.decoder->close();
    return player.isReady() ? opened - threads() : -1;
}

} // namespace

/// Checks that tests which simulate other machines really do so.
class CoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decoder_hasAThreadMoreThanCores_exceptForOne();
};

void CoresTest::decoder_hasAThreadMoreThanCores_exceptForOne()
{
    QCOMPARE(threadsOfDecoder(1), 0);
    QCOMPARE(threadsOfDecoder(2), 3);
    QCOMPARE(threadsOfDecoder(8), 9);
    QCOMPARE(threadsOfDecoder(15), 16);
    QCOMPARE(threadsOfDecoder(64), 16);
}

QTEST_GUILESS_MAIN(CoresTest)
#include "CoresTest.moc"
