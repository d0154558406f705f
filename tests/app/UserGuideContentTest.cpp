#include "tests/app/CommandLine.h"

#include <QTest>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

QDir guideFolder()
{
    return QDir(QStringLiteral(MORVANTILE_GUIDE));
}

QString guide()
{
    QFile file(guideFolder().filePath(QStringLiteral("user-guide.html")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The matches of the pattern's first group, without duplicates.
QSet<QString> allOf(const QString& pattern, const QString& text)
{
    QSet<QString> found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        found.insert(matches.next().captured(1));
    }
    return found;
}

QStringList missingFrom(const QSet<QString>& present, const QSet<QString>& wanted)
{
    QStringList missing = (QSet<QString>(wanted) -= present).values();
    missing.sort();
    return missing;
}

} // namespace

class UserGuideContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLink_leadsToASection();
    void everyPicture_isThere();
    void everyPictureInTheFolder_isShown();
    void everyOptionOfTheCommandLine_isExplained();
    void theSectionThatHelpOpens_isThere();
};

void UserGuideContentTest::everyLink_leadsToASection()
{
    const QSet<QString> links = allOf(QStringLiteral("href=\"#([^\"]+)\""), guide());
    QVERIFY(!links.isEmpty());
    QCOMPARE(missingFrom(allOf(QStringLiteral("id=\"([^\"]+)\""), guide()), links), QStringList());
}

void UserGuideContentTest::everyPicture_isThere()
{
    const QSet<QString> pictures = allOf(QStringLiteral("<img src=\"([^\"]+)\""), guide());
    QVERIFY(!pictures.isEmpty());
    for (const QString& picture : pictures) {
        QVERIFY2(!QImage(guideFolder().filePath(picture)).isNull(), qPrintable(picture));
    }
}

void UserGuideContentTest::everyPictureInTheFolder_isShown()
{
    const QStringList files = guideFolder().entryList({QStringLiteral("*.png")}, QDir::Files);
    const QSet<QString> shown = allOf(QStringLiteral("<img src=\"([^\"]+)\""), guide());
    QCOMPARE(missingFrom(shown, QSet<QString>(files.begin(), files.end())), QStringList());
}

void UserGuideContentTest::everyOptionOfTheCommandLine_isExplained()
{
    const QString help =
        QString::fromLocal8Bit(commandline::run({QStringLiteral("--help")}).standardOutput);
    QSet<QString> options = allOf(QStringLiteral("(?m)^ *(?:-\\w, )?(--[a-z-]+)"), help);
    QVERIFY(options.contains(QStringLiteral("--skipback")));
    // Qt's own option, which has nothing to do with videos.
    options.remove(QStringLiteral("--help-all"));
    const QSet<QString> explained = allOf(QStringLiteral("<code>(--[a-z-]+)</code>"), guide());
    QCOMPARE(missingFrom(explained, options), QStringList());
}

void UserGuideContentTest::theSectionThatHelpOpens_isThere()
{
    QVERIFY(guide().contains(QLatin1String("id=\"command-line\"")));
}

QTEST_GUILESS_MAIN(UserGuideContentTest)

#include "UserGuideContentTest.moc"
