#include "ui/mainwindow/UserGuide.h"

#include "tests/support/TestDir.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using testsupport::TestDir;

class UserGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void url_isOnTheWeb_whenNoGuideIsInstalled();
    void url_isTheFirstInstalledGuide();
};

void UserGuideTest::url_isOnTheWeb_whenNoGuideIsInstalled()
{
    const TestDir dir;
    QCOMPARE(UserGuide::url(QString(), {dir.path()}).toString(),
             QStringLiteral("https://morvantile.example/support"));
    QCOMPARE(UserGuide::url(QStringLiteral("command-line"), {}).toString(),
             QStringLiteral("https://morvantile.example/support#command-line"));
}

void UserGuideTest::url_isTheFirstInstalledGuide()
{
    const TestDir empty;
    const TestDir dir;
    QFile guide(dir.filePath(QStringLiteral("user-guide.html")));
    QVERIFY(guide.open(QIODevice::WriteOnly));
    const QUrl url = UserGuide::url(QStringLiteral("command-line"),
                                    {empty.path(), dir.path() + QLatin1Char('/')});
    QCOMPARE(url.toLocalFile(), QFileInfo(guide.fileName()).canonicalFilePath());
    QCOMPARE(url.fragment(), QStringLiteral("command-line"));
    QVERIFY(UserGuide::url(QString(), {dir.path()}).fragment().isEmpty());
}

QTEST_GUILESS_MAIN(UserGuideTest)
#include "UserGuideTest.moc"
