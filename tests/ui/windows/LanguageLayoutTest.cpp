#include "tests/ui/windows/AllWindows.h"
#include "tests/ui/windows/CutTexts.h"
#include "ui/language/Languages.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

using namespace testsupport;

namespace {

const QStringList languages{QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("es"),
                            QStringLiteral("fr"), QStringLiteral("ja"), QStringLiteral("zh_CN")};

/// The marked letters of a menu, and the texts without one.
QStringList marksIn(const QMenu& menu, QStringList& unmarked)
{
    static const QRegularExpression mark(QStringLiteral("(?<!&)&([^&])"));
    QStringList marks;
    const auto actions = menu.actions();
    for (const QAction* const action : actions) {
        const QRegularExpressionMatch match = mark.match(action->text());
        if (match.hasMatch()) {
            marks += match.captured(1).toLower();
        } else if (!action->isSeparator()) {
            unmarked += action->text();
        }
    }
    return marks;
}

} // namespace

/// The windows in each language, and in one that is 40 % longer than English.
class LanguageLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { testsupport::useProgramsLooks(); }
    void cleanup();
    void texts_haveRoom_data();
    void texts_haveRoom();
    void menus_haveLettersToChooseBy_data();
    void menus_haveLettersToChooseBy();
    void video_runsFromLeftToRight_inArabicToo();

private:
    void use(const QString& language);
};

void LanguageLayoutTest::use(const QString& language)
{
    if (language == QLatin1String("pseudo")) {
        auto* const translator = new QTranslator(qApp);
        QVERIFY(translator->load(QStringLiteral(MORVANTILE_PSEUDO_LANGUAGE)));
        QVERIFY(QCoreApplication::installTranslator(translator));
    } else {
        Languages::use(*qApp, language, {QStringLiteral(MORVANTILE_CATALOGUES_DIR)});
    }
}

void LanguageLayoutTest::cleanup()
{
    const auto loaded = qApp->findChildren<QTranslator*>();
    qDeleteAll(loaded);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void LanguageLayoutTest::texts_haveRoom_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages + QStringList{QStringLiteral("pseudo")}) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void LanguageLayoutTest::texts_haveRoom()
{
    QFETCH(QString, language);
    use(language);
    QStringList found;
    visitAllWindows([&](QWidget& window) {
        const QStringList here = cutIn(window);
        for (const QString& name : here) {
            found += nameOf(window) + QStringLiteral(" / ") + name;
        }
    });
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void LanguageLayoutTest::menus_haveLettersToChooseBy_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages + QStringList{QStringLiteral("en")}) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void LanguageLayoutTest::menus_haveLettersToChooseBy()
{
    QFETCH(QString, language);
    use(language);
    QStringList wrong;
    visitMainWindow([&](QWidget& window) {
        auto* const main = qobject_cast<QMainWindow*>(&window);
        if (main == nullptr) {
            return;
        }
        const auto menus = main->menuBar()->findChildren<QMenu*>();
        QVERIFY(menus.size() > 8);
        for (QMenu* const menu : menus) {
            Q_EMIT menu->aboutToShow();
            QStringList marks = marksIn(*menu, wrong);
            if (marks.removeDuplicates() > 0) {
                wrong += menu->title() + QStringLiteral(": ") + marks.join(QLatin1Char(' '));
            }
        }
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

void LanguageLayoutTest::video_runsFromLeftToRight_inArabicToo()
{
    use(QStringLiteral("ar"));
    visitMainWindow([](QWidget& window) {
        if (qobject_cast<QMainWindow*>(&window) == nullptr) {
            return;
        }
        const auto left = [&window](const char* name) {
            const auto& control = *window.findChild<QWidget*>(QLatin1String(name));
            return control.mapTo(&window, QPoint()).x();
        };
        QCOMPARE(window.layoutDirection(), Qt::RightToLeft);
        QVERIFY(left("snapshotControlsFrame") < left("videoSlider"));
        QVERIFY(left("stepBackwardButton") < left("stepForwardButton"));
        QCOMPARE(window.findChild<QWidget*>(QStringLiteral("videoSlider"))->layoutDirection(),
                 Qt::LeftToRight);
    });
}

QTEST_MAIN(LanguageLayoutTest)
#include "LanguageLayoutTest.moc"
