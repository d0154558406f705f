#pragma once

#include <QMessageBox>
#include <QString>

namespace testsupport {

/// What a message box said, once it was ended.
struct SeenBox
{
    QString title;
    QString text;
    QString informativeText;
    QMessageBox::StandardButtons buttons;
    /// The button that the return key presses.
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    QWidget* parent = nullptr;
};

/// Ends the next message box with the button, as soon as it shows, and keeps what it said in
/// `seen`, which must outlive it.
void answerNextBox(QMessageBox::StandardButton button, SeenBox& seen);

} // namespace testsupport
