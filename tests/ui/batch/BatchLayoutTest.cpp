#include "tests/ui/batch/ModeDialog.h"
#include "tests/ui/dialogs/support/DialogFit.h"
#include "ui/batch/BatchProcessingDialog.h"

#include <QTest>

using testsupport::misfits;
using testsupport::ModeDialog;
using testsupport::ProgramLook;

/// Whether the dialogs of batch mode fit a small screen, in the program's style.
class BatchLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogs_fitASmallScreen_data();
    void dialogs_fitASmallScreen();
    void list_takesTheRoomThatThereIs();
    void emptyList_saysWhatToDo();
};

void BatchLayoutTest::dialogs_fitASmallScreen_data()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("normal font") << 1.0;
    QTest::newRow("large font") << testsupport::largeFont;
}

void BatchLayoutTest::dialogs_fitASmallScreen()
{
    QFETCH(double, factor);
    const ProgramLook look(factor);
    ModeDialog mode;
    QCOMPARE(misfits(mode.dialog()), QString());
    mode.load(2);
    QCOMPARE(misfits(mode.dialog()), QString());
    BatchProcessingDialog processing(nullptr);
    QCOMPARE(misfits(processing), QString());
}

void BatchLayoutTest::list_takesTheRoomThatThereIs()
{
    const ProgramLook look(1.0);
    ModeDialog mode;
    mode.dialog().resize(1000, 600);
    mode.dialog().show();
    const QSize before = mode.table().size();
    mode.dialog().resize(1400, 760);
    QCoreApplication::processEvents();
    QCOMPARE(mode.table().size() - before, QSize(400, 160));
}

void BatchLayoutTest::emptyList_saysWhatToDo()
{
    ModeDialog mode;
    mode.dialog().show();
    const auto* const hint = mode.table().viewport()->findChild<QLabel*>();
    QVERIFY(hint != nullptr && hint->isVisible() && hint->isEnabled());
    QVERIFY(hint->text().contains(QStringLiteral("Load videos, or drop them here.")));
    mode.load(1);
    QVERIFY(!hint->isVisible());
}

QTEST_MAIN(BatchLayoutTest)
#include "BatchLayoutTest.moc"
