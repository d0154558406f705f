#include "ui/widgets/GroupBoxMargins.h"

#include <QGroupBox>
#include <QTest>
#include <QVBoxLayout>

class GroupBoxMarginsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyGroupBox_getsTenPixels_howeverDeep();
    void otherLayouts_areLeftAlone();
    void groupBoxWithoutLayout_isPassedOver();
};

void GroupBoxMarginsTest::everyGroupBox_getsTenPixels_howeverDeep()
{
    QWidget window;
    auto* outer = new QGroupBox(&window);
    auto* outerLayout = new QVBoxLayout(outer);
    auto* inner = new QGroupBox;
    outerLayout->addWidget(inner);
    auto* innerLayout = new QVBoxLayout(inner);
    innerLayout->setContentsMargins(1, 2, 3, 4);

    GroupBoxMargins::apply(window);
    QCOMPARE(outerLayout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(innerLayout->contentsMargins(), QMargins(10, 10, 10, 10));
}

void GroupBoxMarginsTest::otherLayouts_areLeftAlone()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(1, 2, 3, 4);
    auto* groupBox = new QGroupBox;
    layout->addWidget(groupBox);
    auto* outer = new QVBoxLayout(groupBox);
    auto* nested = new QVBoxLayout;
    outer->addLayout(nested);
    nested->setContentsMargins(1, 2, 3, 4);

    GroupBoxMargins::apply(window);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(nested->contentsMargins(), QMargins(1, 2, 3, 4));
}

void GroupBoxMarginsTest::groupBoxWithoutLayout_isPassedOver()
{
    QWidget window;
    const QGroupBox bare(&window);
    auto* other = new QGroupBox(&window);
    const auto* layout = new QVBoxLayout(other);
    GroupBoxMargins::apply(window);
    QVERIFY(bare.layout() == nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
}

QTEST_MAIN(GroupBoxMarginsTest)
#include "GroupBoxMarginsTest.moc"
