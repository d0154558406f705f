#include "ui/theme/ThemeStyle.h"

#include <QListWidget>
#include <QProxyStyle>
#include <QTest>

#include <memory>

namespace {

/// The style of a desktop on which one click opens things.
class SingleClickStyle : public QProxyStyle
{
public:
    SingleClickStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        return hint == SH_ItemView_ActivateItemOnSingleClick
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

/// A shown list of two items.
struct List
{
    List()
    {
        widget.addItems({QStringLiteral("a"), QStringLiteral("b")});
        widget.setSelectionMode(QAbstractItemView::ExtendedSelection);
        widget.show();
        QObject::connect(&widget, &QListWidget::itemActivated, &widget, [this] { ++activations; });
    }

    void click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QRect area = widget.visualItemRect(widget.item(row));
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, modifiers, area.center());
    }

    QListWidget widget;
    int activations = 0;
};

} // namespace

class ThemeStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void click_selectsAndActivatesNothing_whateverTheDesktopDoes();
};

void ThemeStyleTest::click_selectsAndActivatesNothing_whateverTheDesktopDoes()
{
    ThemeStyle style;
    style.setBaseStyle(std::make_unique<SingleClickStyle>().release());
    List list;
    list.widget.setStyle(&style);
    list.click(0);
    list.click(1, Qt::ControlModifier);
    QCOMPARE(list.widget.selectedItems().size(), 2);
    QCOMPARE(list.activations, 0);
    QTest::keyClick(&list.widget, Qt::Key_Return);
    QCOMPARE(list.activations, 1);
}

QTEST_MAIN(ThemeStyleTest)
#include "ThemeStyleTest.moc"
