#include "ui/mainwindow/DropZone.h"

#include "tests/support/Patience.h"
#include "tests/support/TestDir.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QWidget>

#include <chrono>
#include <cmath>

using testsupport::patienceMs;
using namespace std::chrono_literals;
using testsupport::TestDir;

class DropZoneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void highlight_isShown_whileFilesAreOverTheWindow();
    void highlight_isReadable();
    void textThatIsDragged_isRefused();
    void oneFile_isDropped_asACopy();
    void folder_isSearched_andItsVideosDropped();
    void dropWithoutVideos_saysSo();
    void newerDrop_takesThePlaceOfTheOlder();
    void longSearch_showsADialog_untilTheVideosAreFound();
    void quickSearch_showsNoDialog();
    void cancelledSearch_dropsNothing_andTheNextHasItsDialogAgain();
};

namespace {

struct Zone
{
    explicit Zone(std::chrono::milliseconds patience = DropZone::usualPatience)
        : zone(*new DropZone(window, patience))
    {
        window.resize(300, 200);
        window.show();
    }

    void offer(const QStringList& paths)
    {
        QList<QUrl> urls;
        for (const QString& path : paths) {
            urls.append(QUrl::fromLocalFile(path));
        }
        data.setUrls(urls);
    }

    bool enter()
    {
        QDragEnterEvent event({50, 50}, actions, &data, Qt::LeftButton, {});
        event.ignore();
        zone.enter(event);
        return event.isAccepted();
    }

    Qt::DropAction drop()
    {
        QDropEvent event({50, 50}, actions, &data, Qt::LeftButton, {});
        event.ignore();
        zone.drop(event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    [[nodiscard]] QWidget& highlight() const
    {
        return *window.findChild<QWidget*>(QStringLiteral("dropHighlight"));
    }

    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QMimeData data;
    QWidget window;
    DropZone& zone;
    QSignalSpy dropped{&zone, &DropZone::dropped};
    QSignalSpy nothing{&zone, &DropZone::nothingFound};
};

/// Counts the dialogs that come up while a search lasts, and may press their button at once.
class Dialogs : public QObject
{
public:
    Dialogs() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const dialog = qobject_cast<QProgressDialog*>(watched);
        if (dialog != nullptr && event->type() == QEvent::Show) {
            ++shown;
            last = dialog;
            if (areCancelled) {
                dialog->findChild<QPushButton*>()->click();
            }
        }
        return false;
    }

    int shown = 0;
    bool areCancelled = false;
    QPointer<QProgressDialog> last;
};

/// Relative luminance of a colour, by WCAG.
double luminance(const QColor& colour)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

void DropZoneTest::highlight_isShown_whileFilesAreOverTheWindow()
{
    const TestDir dir;
    Zone zone;
    QLabel beside(QStringLiteral("beside"), &zone.window);
    beside.move(20, 20);
    beside.show();
    const QRect before = beside.geometry();
    zone.offer({dir.makeFile(QStringLiteral("a.mp4"))});
    QVERIFY(!zone.highlight().isVisible());
    QVERIFY(zone.enter());
    QVERIFY(zone.highlight().isVisible());
    QCOMPARE(zone.highlight().geometry(), zone.window.rect());
    QCOMPARE(beside.geometry(), before);
    zone.zone.leave();
    QVERIFY(!zone.highlight().isVisible());
    QVERIFY(zone.enter());
    static_cast<void>(zone.drop());
    QVERIFY(!zone.highlight().isVisible());
}

/// One line of the frame is visible on any ground. Checked on the painted result.
void DropZoneTest::highlight_isReadable()
{
    const TestDir dir;
    for (const Qt::GlobalColor ground : {Qt::black, Qt::white, Qt::gray}) {
        Zone zone;
        QPalette palette = zone.window.palette();
        palette.setColor(QPalette::Window, ground);
        zone.window.setPalette(palette);
        zone.offer({dir.makeFile(QStringLiteral("a.mp4"))});
        QVERIFY(zone.enter());
        const QImage picture = zone.window.grab().toImage();
        const double seen = std::max(contrast(picture.pixelColor(1, 100), ground),
                                     contrast(picture.pixelColor(7, 100), ground));
        QVERIFY2(seen >= 4.5, qPrintable(QString::number(seen)));
    }
}

void DropZoneTest::textThatIsDragged_isRefused()
{
    Zone zone;
    zone.data.setText(QStringLiteral("film.mp4"));
    QVERIFY(!zone.enter());
    QVERIFY(!zone.highlight().isVisible());
    QCOMPARE(zone.drop(), Qt::IgnoreAction);
    QVERIFY(!zone.zone.isSearching());
}

/// Never moved, because the source program would then delete it.
void DropZoneTest::oneFile_isDropped_asACopy()
{
    const TestDir dir;
    Zone zone;
    const QString video = dir.makeFile(QStringLiteral("a.mp4"));
    zone.offer({video});
    QCOMPARE(zone.drop(), Qt::CopyAction);
    // The other program does not wait for the result.
    QVERIFY(zone.dropped.isEmpty());
    QVERIFY(zone.dropped.wait(patienceMs));
    QCOMPARE(zone.dropped.first().first().toStringList(), QStringList(video));
}

void DropZoneTest::folder_isSearched_andItsVideosDropped()
{
    const TestDir dir;
    Zone zone;
    const QString ninth = dir.makeFile(QStringLiteral("day/9.mp4"));
    const QString tenth = dir.makeFile(QStringLiteral("day/10.mp4"));
    dir.makeFile(QStringLiteral("day/notes.txt"));
    zone.offer({dir.filePath(QStringLiteral("day"))});
    QVERIFY(zone.enter());
    QCOMPARE(zone.drop(), Qt::CopyAction);
    QVERIFY(zone.zone.isSearching());
    QVERIFY(zone.dropped.wait(patienceMs));
    QVERIFY(!zone.zone.isSearching());
    QCOMPARE(zone.dropped.first().first().toStringList(), (QStringList{ninth, tenth}));
}

void DropZoneTest::dropWithoutVideos_saysSo()
{
    const TestDir dir;
    Zone zone;
    dir.makeFile(QStringLiteral("day/notes.txt"));
    zone.offer({dir.filePath(QStringLiteral("day"))});
    QCOMPARE(zone.drop(), Qt::CopyAction);
    QVERIFY(zone.nothing.wait(patienceMs));
    QVERIFY(zone.dropped.isEmpty());
}

void DropZoneTest::newerDrop_takesThePlaceOfTheOlder()
{
    const TestDir dir;
    Zone zone;
    const QString second = dir.makeFile(QStringLiteral("b.mp4"));
    zone.offer({dir.makeFile(QStringLiteral("a.mp4"))});
    static_cast<void>(zone.drop());
    zone.offer({second});
    static_cast<void>(zone.drop());
    QVERIFY(zone.dropped.wait(patienceMs));
    QTest::qWait(50);
    QCOMPARE(zone.dropped.size(), 1);
    QCOMPARE(zone.dropped.first().first().toStringList(), QStringList(second));
}

void DropZoneTest::longSearch_showsADialog_untilTheVideosAreFound()
{
    const TestDir dir;
    Zone zone{0ms};
    Dialogs dialogs;
    const QString video = dir.makeFile(QStringLiteral("day/a.mp4"));
    zone.offer({dir.filePath(QStringLiteral("day"))});
    static_cast<void>(zone.drop());
    QVERIFY(zone.dropped.wait(patienceMs));
    QCOMPARE(dialogs.shown, 1);
    QVERIFY(dialogs.last == nullptr || !dialogs.last->isVisible());
    QCOMPARE(zone.dropped.first().first().toStringList(), QStringList(video));
}

void DropZoneTest::quickSearch_showsNoDialog()
{
    const TestDir dir;
    constexpr auto patience = 300ms;
    Zone zone{patience};
    Dialogs dialogs;
    zone.offer({dir.makeFile(QStringLiteral("a.mp4"))});
    QElapsedTimer sinceDrop;
    sinceDrop.start();
    static_cast<void>(zone.drop());
    QVERIFY(zone.dropped.wait(patienceMs));
    if (sinceDrop.hasExpired(patience.count())) {
        QSKIP("The machine is too busy for a quick search.");
    }
    QTest::qWait(int(patience.count()));
    QCOMPARE(dialogs.shown, 0);
}

void DropZoneTest::cancelledSearch_dropsNothing_andTheNextHasItsDialogAgain()
{
    const TestDir dir;
    Zone zone{0ms};
    Dialogs dialogs;
    dialogs.areCancelled = true;
    dir.makeFile(QStringLiteral("day/a.mp4"));
    zone.offer({dir.filePath(QStringLiteral("day"))});
    static_cast<void>(zone.drop());
    QTRY_VERIFY_WITH_TIMEOUT(!zone.zone.isSearching(), patienceMs);
    QCOMPARE(dialogs.shown, 1);
    QVERIFY(dialogs.last == nullptr || !dialogs.last->isVisible());
    QVERIFY(zone.dropped.isEmpty());

    dialogs.areCancelled = false;
    const QString second = dir.makeFile(QStringLiteral("night/b.mp4"));
    zone.offer({dir.filePath(QStringLiteral("night"))});
    static_cast<void>(zone.drop());
    QVERIFY(zone.dropped.wait(patienceMs));
    QCOMPARE(dialogs.shown, 2);
    // The same thread searches for both, so that the first would have come before.
    QCOMPARE(zone.dropped.size(), 1);
    QCOMPARE(zone.dropped.first().first().toStringList(), QStringList(second));
    QVERIFY(zone.nothing.isEmpty());
}

QTEST_MAIN(DropZoneTest)
#include "DropZoneTest.moc"
