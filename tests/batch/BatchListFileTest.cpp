#include "batch/BatchListFile.h"

#include "batch/BatchWorkerConfig.h"
#include "profiles/ProfileManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace {

/// Each file is longer than the one before, since QSettings takes a file of the same length and
/// time for the same.
void writeList(QByteArray text)
{
    static int files = 0;
    text += QByteArray(++files, '\n');
    QFile file(ProfileManager::getSettingsPath(QStringLiteral("batchList.ini")));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("Cannot write %s", qUtf8Printable(file.fileName()));
    }
}

/// The videos of the stored list.
QStringList loaded()
{
    QObject parent;
    QStringList videos;
    for (const BatchWorkerConfig* const job : BatchListFile::load(&parent)) {
        videos += job->source();
    }
    return videos;
}

} // namespace

class BatchListFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void load_restoresWhatWasSaved_inOrder();
    void load_givesNoMoreJobs_thanTheFileHolds_data();
    void load_givesNoMoreJobs_thanTheFileHolds();
};

void BatchListFileTest::cleanup()
{
    QFile::remove(ProfileManager::getSettingsPath(QStringLiteral("batchList.ini")));
}

void BatchListFileTest::load_restoresWhatWasSaved_inOrder()
{
    QObject parent;
    QList<BatchWorkerConfig*> jobs;
    QStringList videos;
    for (int i = 0; i < 12; ++i) {
        videos += QStringLiteral("/films/%1.mp4").arg(i);
        jobs.append(new BatchWorkerConfig(&parent));
        jobs.last()->setSource(videos.last());
    }
    BatchListFile::save(jobs);
    QCOMPARE(loaded(), videos);
    BatchListFile::save(jobs.mid(0, 1));
    QCOMPARE(loaded(), videos.mid(0, 1));
    BatchListFile::save({});
    QCOMPARE(loaded(), QStringList());
}

void BatchListFileTest::load_givesNoMoreJobs_thanTheFileHolds_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::addColumn<QStringList>("videos");
    const QString a = QStringLiteral("/a.mp4");
    const QString b = QStringLiteral("/b.mp4");
    QTest::newRow("true") << QByteArray("2") << QStringList{a, b};
    QTest::newRow("smaller") << QByteArray("1") << QStringList{a};
    QTest::newRow("larger") << QByteArray("50000") << QStringList{a, b};
    QTest::newRow("negative") << QByteArray("-1") << QStringList();
    QTest::newRow("no number") << QByteArray("x") << QStringList();
}

void BatchListFileTest::load_givesNoMoreJobs_thanTheFileHolds()
{
    QFETCH(const QByteArray, size);
    QFETCH(const QStringList, videos);
    writeList("[jobs]\n1\\source=/a.mp4\n2\\source=/b.mp4\n01\\source=/c.mp4\nx\\source=/d.mp4\n"
              "size=" +
              size + '\n');
    QCOMPARE(loaded(), videos);
}

QTEST_GUILESS_MAIN(BatchListFileTest)
#include "BatchListFileTest.moc"
