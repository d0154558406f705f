#include "tests/ui/dialogs/support/DialogFit.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <algorithm>

namespace {

/// From the top of the highest letter to the bottom of the lowest in the widget's font. This is
/// less than a line, which has empty rows above and below. In small fonts, Qt 6 rounds it up to a
/// row more than a line.
int glyphHeight(const QWidget& widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return std::min(metrics.tightBoundingRect(QStringLiteral("Ågq|")).height(), metrics.height());
}

bool isWrapped(const QLabel& label)
{
    return label.wordWrap() && label.height() >= label.heightForWidth(label.width());
}

/// The width that the text needs, including margins. Tool buttons may be narrower than their hint.
int textWidth(const QWidget& widget)
{
    const auto* const tool = qobject_cast<const QToolButton*>(&widget);
    return tool == nullptr ? widget.sizeHint().width()
                           : tool->fontMetrics().horizontalAdvance(tool->text());
}

bool isCut(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    const bool isText = (label != nullptr && !label->text().isEmpty() && !isWrapped(*label)) ||
                        qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    const bool isField = qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
                         qobject_cast<const QComboBox*>(&widget) != nullptr ||
                         qobject_cast<const QLineEdit*>(&widget) != nullptr;
    const auto* const group = qobject_cast<const QGroupBox*>(&widget);
    const auto* const comboBox = qobject_cast<const QComboBox*>(&widget);
    // Names given by users may be elided, our own texts may not.
    const bool isItemCut =
        comboBox != nullptr && !comboBox->isEditable() &&
        comboBox->sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon &&
        comboBox->width() < comboBox->sizeHint().width();
    const bool isHeadingCut =
        group != nullptr && group->width() < group->fontMetrics().horizontalAdvance(group->title());
    const bool isTooNarrow = isText && widget.width() < textWidth(widget);
    const bool isTooLow = (isText || isField) && widget.height() < glyphHeight(widget);
    // Buttons inside line edits, such as the clear button, have no text.
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    const bool isBare = button != nullptr && button->text().isEmpty();
    return !isBare && (isTooNarrow || isTooLow || isHeadingCut || isItemCut);
}

} // namespace

testsupport::ProgramLook::ProgramLook(double fontFactor)
    : m_font(QApplication::font())
{
    QFile style(QStringLiteral(":/Styles.qss"));
    if (!style.open(QIODevice::ReadOnly)) {
        qFatal("There is no style sheet");
    }
    qApp->setStyleSheet(QString::fromLatin1(style.readAll()));
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * fontFactor);
    QApplication::setFont(font);
}

testsupport::ProgramLook::~ProgramLook()
{
    QApplication::setFont(m_font);
    qApp->setStyleSheet(QString());
}

QStringList testsupport::cutOff(const QDialog& dialog)
{
    QStringList found;
    const auto widgets = dialog.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (widget->isVisible() && isCut(*widget)) {
            found += widget->objectName();
        }
    }
    return found;
}

QString testsupport::misfits(QDialog& dialog)
{
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog)) {
        return QStringLiteral("not shown");
    }
    QCoreApplication::processEvents();
    dialog.resize(dialog.minimumSizeHint());
    QCoreApplication::processEvents();
    QStringList found = cutOff(dialog);
    const QSize size = dialog.size();
    if (size.width() > smallScreen.width() || size.height() > smallScreen.height()) {
        found += QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
    }
    return found.join(QLatin1Char(' '));
}
