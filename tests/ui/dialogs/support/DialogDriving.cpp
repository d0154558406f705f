#include "tests/ui/dialogs/support/DialogDriving.h"

#include "tests/ui/support/Painting.h"
#include "ui/widgets/Field.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>

namespace {

int processed = 0;

void countProcessing(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtDebugMsg && text.startsWith(QLatin1String("Contrast:"))) {
        ++processed;
    }
}

bool takesInput(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QTextEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget);
}

/// The fields inside combo boxes and spin boxes, which are announced by their parents.
bool isPartOfInput(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (takesInput(*above)) {
            return true;
        }
    }
    return false;
}

/// What screen readers announce for a widget. The name of a combo box is its current text.
QString spokenName(const QWidget& widget)
{
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) {
        return box->isEditable() ? box->lineEdit()->accessibleName() : box->accessibleDescription();
    }
    return widget.accessibleName();
}

QString className(const QWidget& widget)
{
    return QString::fromLatin1(widget.metaObject()->className());
}

} // namespace

bool testsupport::showActive(QDialog& dialog)
{
    dialog.show();
    dialog.activateWindow();
    return QTest::qWaitForWindowActive(&dialog);
}

void testsupport::typeProfileName(const QWidget& dialog, const QString& name)
{
    child<QComboBox>(dialog, "profileComboBox").setEditText(name);
}

void testsupport::pickProfile(const QWidget& dialog, int index)
{
    child<QComboBox>(dialog, "profileComboBox").setCurrentIndex(index);
}

QStringList testsupport::fieldsOf(const QDialog& dialog)
{
    QStringList lines;
    const auto fields = dialog.findChildren<Field*>(QString(), Qt::FindDirectChildrenOnly);
    for (const Field* const field : fields) {
        lines += QStringLiteral("%1 %2 %3")
                     .arg(QString::fromLatin1(field->propertyName()), field->widget()->objectName())
                     .arg(field->choiceValue());
    }
    return lines;
}

QStringList testsupport::tabOrder(const QDialog& dialog)
{
    QStringList names;
    for (const QWidget* widget = dialog.nextInFocusChain(); widget != &dialog;
         widget = widget->nextInFocusChain()) {
        const bool byTab = (widget->focusPolicy() & Qt::TabFocus) != 0;
        if (byTab && widget->isVisibleTo(&dialog) && widget->isEnabled() && !widget->focusProxy() &&
            !isPartOfInput(*widget)) {
            names += widget->objectName().isEmpty() ? className(*widget) : widget->objectName();
        }
    }
    return names;
}

QStringList testsupport::inputsWithoutName(const QDialog& dialog)
{
    QStringList names;
    const auto widgets = dialog.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (takesInput(*widget) && !isPartOfInput(*widget) && spokenName(*widget).isEmpty()) {
            names += widget->objectName();
        }
    }
    return names;
}

QImage testsupport::paintedAt(QWidget& widget, QSize size)
{
    if (QLayout* const layout = widget.parentWidget()->layout()) {
        layout->removeWidget(&widget);
    }
    widget.resize(size);
    return paintedBy(widget);
}

void testsupport::chooseFile(QDialog& browser, const QString& path)
{
    qobject_cast<QFileDialog*>(&browser)->setDirectory(QFileInfo(path).path());
    // Typed, because selecting a file programmatically has no effect while the field has the focus.
    child<QLineEdit>(browser, "fileNameEdit").setText(path);
    browser.accept();
}

testsupport::ProcessingCounter::ProcessingCounter()
    : m_previous(qInstallMessageHandler(&countProcessing))
{
    processed = 0;
}

testsupport::ProcessingCounter::~ProcessingCounter()
{
    qInstallMessageHandler(m_previous);
}

int testsupport::ProcessingCounter::count() const
{
    return processed;
}
