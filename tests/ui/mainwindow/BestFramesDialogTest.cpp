#include "ui/mainwindow/BestFramesDialog.h"

#include "tests/support/Patience.h"
#include "tests/support/SharpFrames.h"
#include "tests/support/TestDir.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using testsupport::makeVideoOfSharpFrames;
using testsupport::patienceMs;
using testsupport::TestDir;

class BestFramesDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void proposals_areShown_withTheirTimes();
    void click_goesToTheFrame_andTakesNothing();
    void button_takesTheSelectedFrame();
    void returnKey_takesTheSelectedFrame();
    void blackStretch_saysSo();
    void unreadableVideo_saysWhy();
    void newSearch_takesThePlaceOfTheOldProposals();
    void hiddenDialog_looksForNothing();

private:
    const TestDir m_dir;
    const QString m_video = makeVideoOfSharpFrames(m_dir);
};

namespace {

struct Dialog
{
    [[nodiscard]] bool propose(const QString& video, const VideoStretch& stretch)
    {
        dialog.propose(video, QtAV::Deinterlacing::Automatic, stretch);
        return QTest::qWaitFor([this] { return !text().startsWith(QStringLiteral("Looking")); },
                               patienceMs);
    }

    [[nodiscard]] QString text() const { return dialog.findChild<QLabel*>()->text(); }
    [[nodiscard]] QListWidget& list() const { return *dialog.findChild<QListWidget*>(); }
    [[nodiscard]] QPushButton& takeButton() const
    {
        return *dialog.findChild<QPushButton*>(QStringLiteral("takeBestButton"));
    }

    BestFramesDialog dialog;
    QSignalSpy chosen{&dialog, &BestFramesDialog::frameChosen};
    QSignalSpy taken{&dialog, &BestFramesDialog::snapshotWanted};
};

} // namespace

void BestFramesDialogTest::proposals_areShown_withTheirTimes()
{
    Dialog shown;
    QVERIFY(shown.propose(m_video, {400, 1200}));
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(shown.list().count(), 2);
    QCOMPARE(shown.list().item(0)->text(), QStringLiteral("00:00:00.600"));
    QCOMPARE(shown.list().item(1)->text(), QStringLiteral("00:00:01.000"));
    QVERIFY(!shown.list().item(0)->icon().isNull());
    QVERIFY(!shown.takeButton().isEnabled());
}

void BestFramesDialogTest::click_goesToTheFrame_andTakesNothing()
{
    Dialog shown;
    QVERIFY(shown.propose(m_video, {400, 1200}));
    const QRect area = shown.list().visualItemRect(shown.list().item(1));
    QTest::mouseClick(shown.list().viewport(), Qt::LeftButton, {}, area.center());
    QCOMPARE(shown.chosen.size(), 1);
    QCOMPARE(shown.chosen.first().first().toLongLong(), 1000);
    QVERIFY(shown.taken.isEmpty());
    QVERIFY(shown.takeButton().isEnabled());
}

void BestFramesDialogTest::button_takesTheSelectedFrame()
{
    Dialog shown;
    QVERIFY(shown.propose(m_video, {400, 1200}));
    shown.list().setCurrentRow(0);
    shown.takeButton().click();
    QCOMPARE(shown.taken.size(), 1);
    QCOMPARE(shown.taken.first().first().toLongLong(), 600);
}

void BestFramesDialogTest::returnKey_takesTheSelectedFrame()
{
    Dialog shown;
    QVERIFY(shown.propose(m_video, {400, 1200}));
    shown.list().setCurrentRow(1);
    QTest::keyClick(&shown.list(), Qt::Key_Return);
    QCOMPARE(shown.taken.size(), 1);
    QCOMPARE(shown.taken.first().first().toLongLong(), 1000);
}

void BestFramesDialogTest::blackStretch_saysSo()
{
    Dialog shown;
    QVERIFY(shown.propose(m_video, {1600, 2400}));
    QCOMPARE(shown.list().count(), 0);
    QVERIFY(shown.text().contains(QStringLiteral("black")));
}

void BestFramesDialogTest::unreadableVideo_saysWhy()
{
    Dialog shown;
    QVERIFY(shown.propose(m_dir.filePath(QStringLiteral("gone.mkv")), {0, 1000}));
    QCOMPARE(shown.list().count(), 0);
    QVERIFY(!shown.text().isEmpty());
    QVERIFY(!shown.text().contains(QStringLiteral("black")));
}

void BestFramesDialogTest::newSearch_takesThePlaceOfTheOldProposals()
{
    Dialog shown;
    QVERIFY(shown.propose(m_video, {400, 1200}));
    QVERIFY(shown.propose(m_video, {800, 1200}));
    QCOMPARE(shown.list().count(), 1);
    shown.dialog.reset();
    QCOMPARE(shown.list().count(), 0);
    QCOMPARE(shown.text(), QString());
}

void BestFramesDialogTest::hiddenDialog_looksForNothing()
{
    Dialog shown;
    shown.dialog.propose(m_video, QtAV::Deinterlacing::Automatic, {400, 1200});
    shown.dialog.close();
    QTest::qWait(500);
    QCOMPARE(shown.list().count(), 0);
}

QTEST_MAIN(BestFramesDialogTest)
#include "BestFramesDialogTest.moc"
