#include "ui/widgets/NoFocusItemDelegate.h"

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QTest>

namespace {

QImage painted(const QAbstractItemDelegate& delegate, QStyle::State state)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("video.mp4"));

    QImage image(120, 24, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = state;
    delegate.paint(&painter, option, model.index(0, 0));
    return image;
}

constexpr QStyle::State plain = QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
constexpr QStyle::State focused = plain | QStyle::State_HasFocus;

} // namespace

class NoFocusItemDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void focus_leavesNoTrace();
    void selection_isStillShown();
};

void NoFocusItemDelegateTest::focus_leavesNoTrace()
{
    // The ordinary delegate does draw the frame.
    const QItemDelegate ordinary;
    QVERIFY(painted(ordinary, focused) != painted(ordinary, plain));
    const NoFocusItemDelegate delegate;
    QCOMPARE(painted(delegate, focused), painted(delegate, plain));
    QCOMPARE(painted(delegate, plain), painted(ordinary, plain));
}

void NoFocusItemDelegateTest::selection_isStillShown()
{
    const NoFocusItemDelegate delegate;
    const QStyle::State selected = focused | QStyle::State_Selected;
    QVERIFY(painted(delegate, selected) != painted(delegate, focused));
}

QTEST_MAIN(NoFocusItemDelegateTest)
#include "NoFocusItemDelegateTest.moc"
