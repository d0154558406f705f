#include "tests/ui/windows/AllWindows.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QTest>

#include <algorithm>

using namespace testsupport;

namespace {

/// Screen readers announce this text with the control; its name must state the purpose.
QString accessibleName(QWidget& widget)
{
    const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name).trimmed();
}

/// A combo box is announced by its current item instead of its name; its description must state the
/// purpose.
bool isNamed(QWidget& widget)
{
    if (qobject_cast<QComboBox*>(&widget) != nullptr) {
        return !widget.accessibleName().isEmpty() || !widget.accessibleDescription().isEmpty() ||
               !widget.toolTip().isEmpty();
    }
    return !accessibleName(widget).isEmpty();
}

/// Scrolls to the control, as keys do that move the focus there.
void bringIntoView(QWidget& control)
{
    for (QWidget* parent = control.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(&control);
        }
    }
}

QImage pictureOf(QWidget& window, const QWidget& control)
{
    QCoreApplication::processEvents();
    const QRect area(control.mapTo(&window, QPoint()), control.size());
    return window.grab(area.adjusted(-4, -4, 4, 4)).toImage();
}

/// The control that the focused widget is, or is part of.
QWidget* controlOf(QWidget* widget, const QList<QWidget*>& controls)
{
    while (widget != nullptr && !controls.contains(widget)) {
        widget = widget->parentWidget();
    }
    return widget;
}

/// The tab stops, from the first one until they repeat.
QList<QWidget*> stopsOf(QWidget& window)
{
    QList<QWidget*> stops;
    if (QWidget* const first = window.focusWidget(); first != nullptr && first->hasFocus()) {
        stops += first;
    }
    for (int i = 0; i < 200; ++i) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        QWidget* const focus = QApplication::focusWidget();
        if (stops.contains(focus)) {
            break;
        }
        if (focus != nullptr) {
            stops += focus;
        }
    }
    return stops;
}

/// The places where the focus moves up or to the left. That is allowed from the last control to the
/// first.
QStringList waysBack(const QWidget& window, const QList<QWidget*>& stops)
{
    QStringList back;
    for (int i = 0; i < stops.size(); ++i) {
        const QWidget& one = *stops.at(i);
        const QWidget& other = *stops.at((i + 1) % stops.size());
        const QRect from(one.mapTo(&window, QPoint()), one.size());
        const QRect to(other.mapTo(&window, QPoint()), other.size());
        if (to.bottom() < from.top() && to.right() < from.left()) {
            back += QStringLiteral("from %1 to %2").arg(nameOf(one), nameOf(other));
        }
    }
    return back;
}

/// The radio buttons of a group are one tab stop: the arrow keys move between them.
bool isReachedByArrows(const QWidget& control, const QList<QWidget*>& reached)
{
    const auto* const radio = qobject_cast<const QRadioButton*>(&control);
    return radio != nullptr && radio->autoExclusive() &&
           std::any_of(reached.cbegin(), reached.cend(), [radio](const QWidget* other) {
               return qobject_cast<const QRadioButton*>(other) != nullptr &&
                      other->parentWidget() == radio->parentWidget();
           });
}

/// The picture of the video is a button for the mouse; Space does the same. The slider's keys work
/// in the whole window, and the position field goes wherever the slider does.
bool isMouseOnly(const QWidget& control)
{
    return control.objectName() == QLatin1String("openVideoLabel") ||
           control.objectName() == QLatin1String("videoSlider");
}

} // namespace

/// Checks that the windows can be used without a mouse and without seeing them.
class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void controls_haveNames();
    void controls_areReachedByTab_inTheOrderOfReading();
    void focus_isSeen();
};

void AccessibilityTest::initTestCase()
{
    testsupport::useProgramsLooks();
}

void AccessibilityTest::controls_haveNames()
{
    QStringList nameless;
    int count = 0;
    visitAllWindows([&](QWidget& window) {
        const QList<QWidget*> controls = controlsOf(window);
        for (QWidget* const control : controls) {
            ++count;
            if (!isNamed(*control)) {
                nameless += nameOf(window) + QStringLiteral(": ") + nameOf(*control);
            }
        }
    });
    QVERIFY(count > 100);
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
}

void AccessibilityTest::controls_areReachedByTab_inTheOrderOfReading()
{
    QStringList wrong;
    visitAllWindows([&](QWidget& window) {
        const QList<QWidget*> controls = controlsOf(window);
        const QList<QWidget*> stops = stopsOf(window);
        QList<QWidget*> reached;
        for (QWidget* const stop : stops) {
            reached += controlOf(stop, controls);
        }
        for (const QWidget* const control : controls) {
            const bool isExpected = control->isEnabled() && !isReachedByArrows(*control, reached) &&
                                    !isMouseOnly(*control);
            if (isExpected && !reached.contains(const_cast<QWidget*>(control))) {
                wrong += nameOf(window) + QStringLiteral(": not ") + nameOf(*control);
            }
        }
        const QStringList back = waysBack(window, stops);
        if (back.size() > 1) {
            wrong +=
                nameOf(window) + QStringLiteral(": up and left ") + back.join(QStringLiteral(", "));
        }
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

void AccessibilityTest::focus_isSeen()
{
    QStringList unseen;
    visitAllWindows([&](QWidget& window) {
        const QList<QWidget*> controls = controlsOf(window);
        // Like the first Tab.
        window.setAttribute(Qt::WA_KeyboardFocusChange);
        QList<QWidget*> stops;
        for (QWidget* const control : controls) {
            if (control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0) {
                stops += control;
            }
        }
        for (int i = 0; i < stops.size(); ++i) {
            QWidget* const control = stops.at(i);
            stops.at((i + 1) % stops.size())->setFocus(Qt::TabFocusReason);
            if (stops.size() == 1) {
                control->clearFocus();
            }
            bringIntoView(*control);
            const QImage without = pictureOf(window, *control);
            control->setFocus(Qt::TabFocusReason);
            if (pictureOf(window, *control) == without) {
                unseen += nameOf(window) + QStringLiteral(": ") + nameOf(*control);
            }
        }
    });
    QVERIFY2(unseen.isEmpty(), qPrintable(unseen.join(QLatin1Char('\n'))));
}

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
