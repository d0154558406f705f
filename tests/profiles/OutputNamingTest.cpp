#include "profiles/OutputNaming.h"

#include "profiles/FileNameProfile.h"

#include <QTest>

#include <limits>

class OutputNamingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileName_isPutTogether_inOrder();
    void counter_isLeftOut_orWrittenInFull();
    void profile_namesTheSame();
};

void OutputNamingTest::fileName_isPutTogether_inOrder()
{
    OutputNaming naming;
    QCOMPARE(naming.fileName(QStringLiteral("film"), 7), QStringLiteral("film-00007.jpeg"));
    naming = {QStringLiteral("a_"), QStringLiteral("base"), QStringLiteral("_b"),
              QStringLiteral("png"), false};
    QCOMPARE(naming.fileName(QStringLiteral("film"), 7), QStringLiteral("a_base_b7.png"));
}

void OutputNamingTest::counter_isLeftOut_orWrittenInFull()
{
    const OutputNaming naming;
    const QString video = QStringLiteral("film");
    QCOMPARE(naming.fileName(video, OutputNaming::noCounter), QStringLiteral("film-.jpeg"));
    QCOMPARE(naming.counterText(OutputNaming::noCounter), QString());
    QCOMPARE(naming.fileName(video, 0), QStringLiteral("film-00000.jpeg"));
    QCOMPARE(naming.counterText(0), QStringLiteral("00000"));
    QCOMPARE(naming.fileName(video, std::numeric_limits<int>::max()),
             QStringLiteral("film-2147483647.jpeg"));
}

void OutputNamingTest::profile_namesTheSame()
{
    FileNameProfile profile;
    profile.setFileOutputPrefix(QStringLiteral("x "));
    profile.setFileOutputSuffix(QString());
    profile.setFileOutputType(QStringLiteral("tiff"));
    const QString video = QStringLiteral("my.holiday");
    for (const int counter : {OutputNaming::noCounter, 1, 123456}) {
        QCOMPARE(profile.generateFileName(video, counter),
                 profile.naming().fileName(video, counter));
    }
}

QTEST_GUILESS_MAIN(OutputNamingTest)
#include "OutputNamingTest.moc"
