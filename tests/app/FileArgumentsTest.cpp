#include "app/FileArguments.h"

#include <QDir>
#include <QTest>

class FileArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_areAbsolute_inTheirOrder();
    void options_areNone_unlessTheyComeAfterTwoHyphens();
    void addresses_ofLocalFiles_areFiles();
};

void FileArgumentsTest::files_areAbsolute_inTheirOrder()
{
    QCOMPARE(FileArguments::in({}), QStringList());
    QCOMPARE(FileArguments::in({QStringLiteral("/v/b c.mp4"), QStringLiteral("a.mp4")}),
             QStringList({QStringLiteral("/v/b c.mp4"),
                          QDir::current().absoluteFilePath(QStringLiteral("a.mp4"))}));
}

void FileArgumentsTest::options_areNone_unlessTheyComeAfterTwoHyphens()
{
    QCOMPARE(FileArguments::in({QStringLiteral("-x"), QStringLiteral("--help"),
                                QStringLiteral("/a"), QStringLiteral("--"), QStringLiteral("-b")}),
             QStringList(
                 {QStringLiteral("/a"), QDir::current().absoluteFilePath(QStringLiteral("-b"))}));
}

void FileArgumentsTest::addresses_ofLocalFiles_areFiles()
{
    QCOMPARE(FileArguments::in({QStringLiteral("file:///v/100%25.mp4"),
                                QStringLiteral("/v/100%25.mp4"), QStringLiteral("/v/a:b#c?.mp4")}),
             QStringList({QStringLiteral("/v/100%.mp4"), QStringLiteral("/v/100%25.mp4"),
                          QStringLiteral("/v/a:b#c?.mp4")}));
}

QTEST_APPLESS_MAIN(FileArgumentsTest)
#include "FileArgumentsTest.moc"
