#include "ui/theme/ActionButton.h"

#include "ui/theme/Icons.h"

#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QTest>

namespace {

/// The columns of the button in which something is drawn, from the left; empty for none.
QVector<int> inked(QWidget& widget)
{
    const QImage image = widget.grab().toImage();
    const QRgb ground = image.pixel(4, image.height() / 2);
    QVector<int> columns;
    for (int x = 4; x < image.width() - 4; ++x) {
        for (int y = 6; y < image.height() - 6; ++y) {
            if (image.pixel(x, y) != ground) {
                columns.append(x);
                break;
            }
        }
    }
    return columns;
}

} // namespace

class ActionButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keys_makeItWider_butMayBeLeftOut();
    void iconStandsBesideTheText_inBothDirections();
    void margins_giveWay_beforeTheTextDoes();
    void narrowButton_showsItsIconAlone();
    void button_givesWay_untilTheLabelHasRoom();

private:
    static void fill(ActionButton& button);
};

void ActionButtonTest::init()
{
    qApp->setStyleSheet(
        QStringLiteral("QPushButton { border: 1px solid black; padding: 4px 12px; }"));
}

void ActionButtonTest::fill(ActionButton& button)
{
    button.setIcon(theme::icon(QStringLiteral("Save")));
    button.setText(QStringLiteral("Save"));
}

void ActionButtonTest::keys_makeItWider_butMayBeLeftOut()
{
    ActionButton button;
    fill(button);
    const QSize without = button.sizeHint();
    button.setKeys(QStringLiteral("Ctrl+S"));
    QVERIFY(button.sizeHint().width() > without.width());
    QCOMPARE(button.minimumSizeHint(), without);
    button.resize(button.sizeHint());
    const auto wide = inked(button);
    button.resize(without);
    QVERIFY(inked(button).size() < wide.size());
}

void ActionButtonTest::iconStandsBesideTheText_inBothDirections()
{
    // In a wide button they are close to each other, and in its middle.
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        ActionButton button;
        fill(button);
        button.setLayoutDirection(direction);
        button.resize(400, 40);
        const QVector<int> columns = inked(button);
        QVERIFY(!columns.isEmpty());
        QVERIFY(columns.last() - columns.first() < button.minimumSizeHint().width());
        QVERIFY(std::abs(columns.first() + columns.last() - 400) < 12);
    }
}

void ActionButtonTest::margins_giveWay_beforeTheTextDoes()
{
    ActionButton button;
    fill(button);
    button.resize(button.minimumSizeHint());
    const QVector<int> whole = inked(button);
    // Of the 24 pixels of padding, eight can go.
    button.resize(button.width() - 8, button.height());
    QCOMPARE(inked(button).size(), whole.size());
}

void ActionButtonTest::narrowButton_showsItsIconAlone()
{
    ActionButton button;
    fill(button);
    button.setFixedWidth(button.iconSize().width() + 16);
    const QVector<int> columns = inked(button);
    QVERIFY(!columns.isEmpty());
    QVERIFY(columns.last() - columns.first() < button.iconSize().width());
}

void ActionButtonTest::button_givesWay_untilTheLabelHasRoom()
{
    QWidget row;
    auto* const label = new QLabel(QStringLiteral("What was saved, and where"), &row);
    label->setMinimumWidth(10);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* const button = new ActionButton(&row);
    fill(*button);
    auto* const layout = new QHBoxLayout(&row);
    layout->addWidget(label, 1);
    layout->addWidget(button);
    button->giveWayTo(*label, 1);
    row.resize(600, 60);
    row.show();
    QCoreApplication::processEvents();
    QCOMPARE(button->width(), button->sizeHint().width());
    row.resize(layout->minimumSize().width(), 60);
    row.resize(label->fontMetrics().horizontalAdvance(label->text()) + 80, 60);
    QCoreApplication::processEvents();
    QVERIFY(button->width() < button->minimumSizeHint().width());
    row.resize(600, 60);
    QTRY_COMPARE(button->width(), button->sizeHint().width());
}

QTEST_MAIN(ActionButtonTest)
#include "ActionButtonTest.moc"
