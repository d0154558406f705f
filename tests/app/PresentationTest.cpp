#include "app/Presentation.h"

#include "tests/support/TestDir.h"
#include "tests/ui/support/TestSettings.h"
#include "ui/mainwindow/MainWindow.h"

#include <QApplication>
#include <QFile>
#include <QScreen>
#include <QTest>
#include <QTimer>

using testsupport::TestDir;
using testsupport::TestSettings;

class PresentationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void styleSheet_isApplied_upToTheFirstNul();
    void styleSheet_isReadAsLatin1();
    void styleSheet_missing_isNotedAndLeavesTheApplicationUnstyled();
    void centre_putsTheWindowInTheMiddle();
    void centre_staysOnAScreenBesideAnother();
    void centre_cutsHalfPixels_whenTheWindowIsLargerThanTheScreen();
    void mainWindow_isShownCentredAndStyled_untilTheLoopEnds();
};

namespace {

QString fileWith(const TestDir& dir, const QByteArray& content)
{
    QFile file(dir.filePath(QStringLiteral("style.qss")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

} // namespace

void PresentationTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void PresentationTest::styleSheet_isApplied_upToTheFirstNul()
{
    const TestDir dir;
    Presentation::applyStyleSheet(*qApp, fileWith(dir, QByteArray("QLabel {}\0QFrame {}", 18)));
    QCOMPARE(qApp->styleSheet(), QStringLiteral("QLabel {}"));
}

void PresentationTest::styleSheet_isReadAsLatin1()
{
    const TestDir dir;
    Presentation::applyStyleSheet(*qApp, fileWith(dir, "/* \xe9 */"));
    QCOMPARE(qApp->styleSheet(), QStringLiteral("/* \u00e9 */"));
}

void PresentationTest::styleSheet_missing_isNotedAndLeavesTheApplicationUnstyled()
{
    const TestDir dir;
    QTest::ignoreMessage(QtDebugMsg, "Style not loaded");
    Presentation::applyStyleSheet(*qApp, dir.filePath(QStringLiteral("none.qss")));
    QVERIFY(qApp->styleSheet().isEmpty());
}

void PresentationTest::centre_putsTheWindowInTheMiddle()
{
    QWidget window;
    window.resize(800, 600);
    Presentation::centre(window, QRect(0, 0, 1920, 1080));
    QCOMPARE(window.pos(), QPoint(560, 240));
}

void PresentationTest::centre_staysOnAScreenBesideAnother()
{
    QWidget window;
    window.resize(800, 600);
    Presentation::centre(window, QRect(1920, 120, 1280, 1024));
    QCOMPARE(window.pos(), QPoint(1920 + 240, 120 + 212));
}

void PresentationTest::centre_cutsHalfPixels_whenTheWindowIsLargerThanTheScreen()
{
    QWidget window;
    window.resize(800, 600);
    Presentation::centre(window, QRect(0, 0, 641, 481));
    QCOMPARE(window.pos(), QPoint(-79, -59));
}

void PresentationTest::mainWindow_isShownCentredAndStyled_untilTheLoopEnds()
{
    const TestSettings settings;
    bool seen = false;
    QTimer::singleShot(0, qApp, [&seen] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget* const widget : widgets) {
            if (qobject_cast<MainWindow*>(widget) != nullptr && widget->isVisible()) {
                const QSize screen = QGuiApplication::primaryScreen()->size();
                seen = true;
                QCOMPARE(widget->size(), QSize(800, 600));
                QCOMPARE(widget->pos(),
                         QPoint((screen.width() - 800) / 2, (screen.height() - 600) / 2));
                QCOMPARE(widget->windowTitle(), QStringLiteral("Morvantile"));
                QVERIFY(!qApp->styleSheet().isEmpty());
                widget->close();
            }
        }
    });
    showMainWindow(*qApp);
    QVERIFY(seen);
}

QTEST_MAIN(PresentationTest)
#include "PresentationTest.moc"
