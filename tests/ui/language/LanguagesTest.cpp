#include "ui/language/Languages.h"

#include "tests/ui/support/TestSettings.h"

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <QTranslator>

using testsupport::TestSettings;

namespace {

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QStringList ourFolders()
{
    return {QStringLiteral(MORVANTILE_CATALOGUES_DIR)};
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void available_areThoseWithACatalogue();
    void available_isEnglish_whereThereAreNoFolders();
    void nativeNames_areTheLanguagesOwn();
    void best_isTheFirstThatIsAvailable_data();
    void best_isTheFirstThatIsAvailable();
    void language_isTakenFromTheArguments_beforeTheFiles();
    void choice_isRemembered();
    void texts_areOfTheLanguage();
    void texts_areOfQtToo();
    void texts_haveThePluralOfTheLanguage();
    void arabic_isWrittenFromRightToLeft();
    void unknownLanguage_leavesEnglish();
};

void LanguagesTest::cleanup()
{
    const auto loaded = qApp->findChildren<QTranslator*>();
    qDeleteAll(loaded);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void LanguagesTest::available_areThoseWithACatalogue()
{
    QCOMPARE(Languages::available(ourFolders()), words("ar de en es fr ja zh_CN"));
}

void LanguagesTest::available_isEnglish_whereThereAreNoFolders()
{
    QCOMPARE(Languages::available({QStringLiteral("/nowhere")}), words("en"));
}

void LanguagesTest::nativeNames_areTheLanguagesOwn()
{
    QCOMPARE(Languages::nativeName(QStringLiteral("en")), QStringLiteral("English"));
    QCOMPARE(Languages::nativeName(QStringLiteral("de")), QStringLiteral("Deutsch"));
    QCOMPARE(Languages::nativeName(QStringLiteral("fr")), QStringLiteral("Français"));
    QCOMPARE(Languages::nativeName(QStringLiteral("ja")), QStringLiteral("日本語"));
}

void LanguagesTest::best_isTheFirstThatIsAvailable_data()
{
    QTest::addColumn<QString>("preferred");
    QTest::addColumn<QString>("best");
    QTest::newRow("itself") << "de"
                            << "de";
    QTest::newRow("another country") << "de-AT de"
                                     << "de";
    QTest::newRow("script and country") << "zh-Hans-CN zh-CN zh"
                                        << "zh_CN";
    QTest::newRow("the same language in another script") << "zh-TW zh"
                                                         << "en";
    QTest::newRow("second choice") << "nl fr"
                                   << "fr";
    QTest::newRow("English before another") << "en-GB de"
                                            << "en";
    QTest::newRow("none") << "nl"
                          << "en";
    QTest::newRow("no country's") << "C"
                                  << "en";
}

void LanguagesTest::best_isTheFirstThatIsAvailable()
{
    QFETCH(QString, preferred);
    QFETCH(QString, best);
    const QStringList available = words("ar de en es fr ja zh_CN");
    QCOMPARE(Languages::bestOf(preferred.split(QLatin1Char(' ')), available), best);
}

void LanguagesTest::language_isTakenFromTheArguments_beforeTheFiles()
{
    QCOMPARE(Languages::inArguments(words("program a.mp4 --language=fr b.mp4")),
             QStringLiteral("fr"));
    QCOMPARE(Languages::inArguments(words("program -- --language=fr")), QString());
    QCOMPARE(Languages::inArguments(words("program --language")), QString());
}

void LanguagesTest::choice_isRemembered()
{
    const TestSettings ofTheCase;
    {
        QSettings settings;
        QCOMPARE(Languages::chosen(settings), QString());
        Languages::setChosen(settings, QStringLiteral("ja"));
    }
    QSettings settings;
    QCOMPARE(Languages::chosen(settings), QStringLiteral("ja"));
    Languages::setChosen(settings, QString());
    QVERIFY(!settings.contains(QStringLiteral("language")));
}

void LanguagesTest::texts_areOfTheLanguage()
{
    Languages::use(*qApp, QStringLiteral("de"), ourFolders());
    QCOMPARE(QCoreApplication::translate("MainWindow", "Take Snapshot"),
             QStringLiteral("Schnappschuss aufnehmen"));
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

void LanguagesTest::texts_areOfQtToo()
{
    Languages::use(*qApp, QStringLiteral("de"), ourFolders());
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
}

void LanguagesTest::texts_haveThePluralOfTheLanguage()
{
    Languages::use(*qApp, QStringLiteral("ar"), ourFolders());
    const auto text = [](int count) {
        return QCoreApplication::translate("MainWindow", "Saved %n snapshots", nullptr, count);
    };
    QCOMPARE(text(2), QStringLiteral("حُفظت لقطتان (2)"));
    QCOMPARE(text(5), QStringLiteral("حُفظت 5 لقطات"));
    QCOMPARE(text(11), QStringLiteral("حُفظت 11 لقطة"));
}

void LanguagesTest::arabic_isWrittenFromRightToLeft()
{
    Languages::use(*qApp, QStringLiteral("ar"), ourFolders());
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
}

void LanguagesTest::unknownLanguage_leavesEnglish()
{
    Languages::use(*qApp, QStringLiteral("tlh"), ourFolders());
    QVERIFY(qApp->findChildren<QTranslator*>().isEmpty());
    QCOMPARE(QCoreApplication::translate("MainWindow", "Take Snapshot"),
             QStringLiteral("Take Snapshot"));
}

QTEST_MAIN(LanguagesTest)
#include "LanguagesTest.moc"
