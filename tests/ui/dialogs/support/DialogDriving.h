#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QWidget>

class Field;
class QDialog;

namespace testsupport {

/// The child with this name and class; ends the program if there is none.
template <typename Widget>
Widget& child(const QWidget& parent, const char* name)
{
    auto* const found = parent.findChild<Widget*>(QLatin1String(name));
    if (!found) {
        qFatal("There is no %s named %s", Widget::staticMetaObject.className(), name);
    }
    return *found;
}

/// Clicks on the button of this name.
inline void click(const QWidget& parent, const char* button)
{
    child<QAbstractButton>(parent, button).click();
}

inline QString textOf(const char* text)
{
    return QString::fromLatin1(text);
}

/// Shows the dialog and waits until it has the keyboard.
[[nodiscard]] bool showActive(QDialog& dialog);

/// Types a name for the profile in place of the one that is there.
void typeProfileName(const QWidget& dialog, const QString& name);

/// Picks the profile in the list.
void pickProfile(const QWidget& dialog, int index);

/// The dialog's fields in their order, each as "property widget choice".
[[nodiscard]] QStringList fieldsOf(const QDialog& dialog);

/// The names of the widgets that the tabulator key leads to, from the first one on.
[[nodiscard]] QStringList tabOrder(const QDialog& dialog);

/// The names of the input widgets without a name for screen readers.
[[nodiscard]] QStringList inputsWithoutName(const QDialog& dialog);

/// What the widget of a form paints when it has this size, whatever room the form gives it.
[[nodiscard]] QImage paintedAt(QWidget& widget, QSize size);

/// Closes a file dialog with this file chosen, as its user would.
void chooseFile(QDialog& browser, const QString& path);

/// Counts the images that the pipeline processes while it lives.
class ProcessingCounter
{
public:
    ProcessingCounter();
    ~ProcessingCounter();
    ProcessingCounter(const ProcessingCounter&) = delete;
    ProcessingCounter& operator=(const ProcessingCounter&) = delete;

    [[nodiscard]] int count() const;

private:
    QtMessageHandler m_previous;
};

} // namespace testsupport
