#include "product/ProductInfo.h"
#include "tests/stills/StillsProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::numbersIn;
using stillsprogram::shortSample;
using stillsprogram::words;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

struct Profile
{
    QString prefix;
    QString baseName;
    QString suffix = QStringLiteral("-");
};

/// Two videos, a.mp4 and b.mp4, and a user with the file-name profile "mine".
class Studio
{
public:
    explicit Studio(const Profile& profile = {})
    {
        for (const QString& video : {videoA(), videoB()}) {
            if (!QFile::copy(samplePath(shortSample), video)) {
                qFatal("Cannot copy the sample to %s", qUtf8Printable(video));
            }
        }
        const QString ini = QStringLiteral("[profiles]\nP\\id=P\nP\\name=mine\nP\\sortOrder=0\n"
                                           "P\\fileOutputPrefix=%1\nP\\fileBaseName=%2\n"
                                           "P\\fileOutputSuffix=%3\nP\\fileOutputType=jpg\n"
                                           "P\\fileOutputCounterPadZeros=false\n");
        m_dir.makeFile(QStringLiteral("config/%1/%1/FileNameProfiles.ini").arg(ProductInfo::name()),
                       ini.arg(profile.prefix, profile.baseName, profile.suffix).toUtf8());
    }

    [[nodiscard]] QString videoA() const { return m_dir.filePath(QStringLiteral("a.mp4")); }
    [[nodiscard]] QString videoB() const { return m_dir.filePath(QStringLiteral("b.mp4")); }

    /// Whether it made all pictures.
    [[nodiscard]] bool run(const QString& folder, const QStringList& options) const
    {
        QProcessEnvironment environment = stillsprogram::environment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                           m_dir.filePath(QStringLiteral("config")));
        constexpr int limitMs = 60000;
        const ProgramResult result = testsupport::runProgram(
            stillsprogram::program(),
            options + QStringList{QStringLiteral("-o"), folder, videoA(), videoB()}, limitMs,
            environment);
        if (!result.succeeded()) {
            qWarning("%s", result.standardError.constData());
        }
        return result.succeeded();
    }

private:
    TestDir m_dir;
};

} // namespace

/// How the pictures of several videos of a run are named.
class StillsNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesWithoutAStem_areThoseOfOneVideo_data();
    void namesWithoutAStem_areThoseOfOneVideo();
    void sheetsWithoutAStem_areThoseOfOneVideo();
    void tails_areApartFromCounters_data();
    void tails_areApartFromCounters();
    void longProfiles_keepTailAndCounter_data();
    void longProfiles_keepTailAndCounter();
};

void StillsNamesTest::namesWithoutAStem_areThoseOfOneVideo_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("names");
    const QString pattern = QStringLiteral("--names=x{number}");
    const QString profile = QStringLiteral("--name-profile=mine");
    QTest::newRow("template") << pattern << QStringLiteral("x1-2.jpg x1.jpg x2-2.jpg x2.jpg");
    QTest::newRow("profile") << profile
                             << QStringLiteral("base-1.jpg base-2-1.jpg base-2-2.jpg base-2.jpg");
}

/// Whether the run was stopped after the first video, is divided, or is repeated.
void StillsNamesTest::namesWithoutAStem_areThoseOfOneVideo()
{
    QFETCH(const QString, option);
    QFETCH(const QString, names);
    const Studio studio({{}, QStringLiteral("base")});
    for (const char* const existing : {"--skip-existing", "--overwrite", "--quiet"}) {
        const QStringList options{option, QStringLiteral("--at=1,2"), QLatin1String(existing)};
        const TestDir whole;
        QVERIFY(studio.run(whole.path(), options));
        QCOMPARE(filesIn(whole.path()), words(qPrintable(names)));

        for (const QStringList& shards : {words("1/2 2/2"), words("2/2 1/2")}) {
            const TestDir divided;
            for (const QString& shard : shards) {
                QVERIFY(studio.run(divided.path(),
                                   options + QStringList{QStringLiteral("--shard"), shard}));
            }
            QCOMPARE(filesIn(divided.path()), words(qPrintable(names)));
        }
    }
    const TestDir stopped;
    QVERIFY(studio.run(stopped.path(),
                       {option, QStringLiteral("--at=1,2"), QStringLiteral("--shard=1/2")}));
    QVERIFY(studio.run(stopped.path(),
                       {option, QStringLiteral("--at=1,2"), QStringLiteral("--skip-existing")}));
    QCOMPARE(filesIn(stopped.path()), words(qPrintable(names)));
}

void StillsNamesTest::sheetsWithoutAStem_areThoseOfOneVideo()
{
    const Studio studio({{}, QStringLiteral("base")});
    const TestDir out;
    QVERIFY(studio.run(out.path(), words("-c2 --sheet=all --skip-existing")));
    QCOMPARE(filesIn(out.path()), words("all-2.jpg all.jpg"));
    const TestDir both;
    QVERIFY(studio.run(both.path(), words("-c1 --sheet --with-pictures --name-profile mine")));
    QCOMPARE(filesIn(both.path()), words("a-sheet.jpg b-sheet.jpg base-.jpg base-2-.jpg"));
}

void StillsNamesTest::tails_areApartFromCounters_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("names");
    QTest::newRow("no suffix") << QString()
                               << QStringLiteral("base-2-1.jpg base-2-2.jpg base1.jpg base2.jpg");
    QTest::newRow("digits") << QStringLiteral("7")
                            << QStringLiteral("base-2-71.jpg base-2-72.jpg base71.jpg base72.jpg");
}

/// Otherwise picture 11 of video 2 would have the name of picture 1 of video 21.
void StillsNamesTest::tails_areApartFromCounters()
{
    QFETCH(const QString, suffix);
    QFETCH(const QString, names);
    const Studio studio({{}, QStringLiteral("base"), suffix});
    const TestDir out;
    QVERIFY(studio.run(out.path(), words("--at 1,2 --name-profile mine")));
    QCOMPARE(filesIn(out.path()), words(qPrintable(names)));
}

void StillsNamesTest::longProfiles_keepTailAndCounter_data()
{
    QTest::addColumn<int>("prefix");
    QTest::addColumn<int>("baseName");
    QTest::addColumn<int>("suffix");
    QTest::newRow("base name") << 1 << 250 << 1;
    QTest::newRow("prefix") << 250 << 1 << 1;
    QTest::newRow("suffix") << 1 << 1 << 250;
    QTest::newRow("together") << 80 << 80 << 80;
    QTest::newRow("all") << 250 << 250 << 250;
}

void StillsNamesTest::longProfiles_keepTailAndCounter()
{
    QFETCH(const int, prefix);
    QFETCH(const int, baseName);
    QFETCH(const int, suffix);
    const Studio studio({QString(prefix, QLatin1Char('p')), QString(baseName, QLatin1Char('b')),
                         QString(suffix, QLatin1Char('s'))});
    const TestDir out;
    const QStringList options = words("--at 1,2 --name-profile mine --skip-existing");
    for (int i = 0; i < 2; ++i) {
        QVERIFY(studio.run(out.path(), options));
        QCOMPARE(filesIn(out.path()).size(), 4);
    }
    static const QRegularExpression pattern(QStringLiteral("^p+b+(-2)?s+[12]\\.jpg$"));
    for (const QString& name : filesIn(out.path())) {
        QVERIFY2(pattern.match(name).hasMatch(), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(StillsNamesTest)

#include "StillsNamesTest.moc"
