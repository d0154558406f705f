// The message box of the systems that have none of their own to rely on.

#include "ui/BoxerButtons.h"
#include "ui/boxer.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

QMessageBox::Icon icon(boxer::Style style)
{
    switch (style) {
    case boxer::Style::Info:
        return QMessageBox::Information;
    case boxer::Style::Warning:
    case boxer::Style::Question:
        return QMessageBox::Warning;
    case boxer::Style::Error:
        return QMessageBox::Critical;
    }
    return QMessageBox::Information;
}

/// A message box that can always be closed without choosing an answer: Escape and the window's
/// close button mean "Cancel" if there is such a button, otherwise no button at all. QMessageBox
/// would treat them as "No" or "OK", or would not close.
class AlertBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        if (hasCancelButton()) {
            QMessageBox::closeEvent(event);
        } else {
            reject();
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel) && !hasCancelButton()) {
            reject();
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }

private:
    bool hasCancelButton() const
    {
        const auto all = buttons();
        return std::any_of(all.begin(), all.end(), [this](QAbstractButton* button) {
            return buttonRole(button) == RejectRole;
        });
    }
};

QMessageBox::ButtonRole role(boxer::Selection selection)
{
    switch (selection) {
    case boxer::Selection::Cancel:
        return QMessageBox::RejectRole;
    case boxer::Selection::Yes:
        return QMessageBox::YesRole;
    case boxer::Selection::No:
        return QMessageBox::NoRole;
    case boxer::Selection::OK:
    case boxer::Selection::Quit:
    case boxer::Selection::None:
        break;
    }
    return QMessageBox::AcceptRole;
}

} // namespace

boxer::Selection boxer::show(const char* message, const char* title, Style style, Buttons buttons)
{
    AlertBox box;
    box.setWindowTitle(QString::fromUtf8(title));
    box.setIcon(icon(style));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromUtf8(title));
    box.setInformativeText(QString::fromUtf8(message));

    const auto shownButtons = BoxerButtons::of(buttons);
    std::vector<QPushButton*> added;
    added.reserve(shownButtons.size());
    for (const auto& button : shownButtons) {
        added.push_back(box.addButton(QString::fromUtf8(button.title), role(button.selection)));
    }
    box.setDefaultButton(added.front());

    box.exec();
    for (std::size_t index = 0; index < added.size(); ++index) {
        if (box.clickedButton() == added[index]) {
            return shownButtons[index].selection;
        }
    }
    return Selection::None;
}
