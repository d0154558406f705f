#include "ui/batch/BatchProcessingDialog.h"

#include "imaging/WriteFailure.h"
#include "tests/ui/support/ShownText.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cerrno>

namespace {

const QString path = QStringLiteral("/mnt/pictures/film<b>-00001.jpg");

/// The failure for a picture without room.
WriteFailure failure()
{
    WriteFailure full;
    full.error = ENOSPC;
    full.path = path;
    full.bytes = 250000;
    full.missing = 200000;
    return full;
}

/// Clicks a button of the next message box, by its text, and stores the box's text.
struct Answer
{
    explicit Answer(const QString& button)
    {
        QTimer::singleShot(0, [this, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            text = testsupport::shownText(box->text());
            const QList<QAbstractButton*> buttons = box->buttons();
            for (QAbstractButton* const candidate : buttons) {
                if (candidate->text() == button) {
                    candidate->click();
                    return;
                }
            }
            QFAIL("There is no such button");
        });
    }

    QString text;
};

} // namespace

class BatchRoomQuestionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void question_saysWhatIsMissing_andTriesAgain()
    {
        BatchProcessingDialog dialog;
        const Answer answer(QStringLiteral("Try Again"));
        QVERIFY(dialog.askForRoom(failure()));
        QVERIFY2(answer.text.contains(QStringLiteral("200.0 kB")), qUtf8Printable(answer.text));
        QVERIFY2(answer.text.contains(path), qUtf8Printable(answer.text));
        const auto* const button = dialog.findChild<QPushButton*>(QStringLiteral("doneButton"));
        QCOMPARE(button->text(), QStringLiteral("Cancel"));
    }

    void stopping_cancelsTheBatch()
    {
        BatchProcessingDialog dialog;
        const Answer answer(QStringLiteral("Stop"));
        QVERIFY(!dialog.askForRoom(failure()));
        const auto* const button = dialog.findChild<QPushButton*>(QStringLiteral("doneButton"));
        QVERIFY(!button->isEnabled());
    }
};

QTEST_MAIN(BatchRoomQuestionTest)

#include "BatchRoomQuestionTest.moc"
