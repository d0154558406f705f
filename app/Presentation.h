#pragma once

#include <QString>
#include <QStringList>

class QApplication;
class QRect;
class QWidget;

/// Shows the window on the screen. User-interface thread only.
namespace Presentation {

/// Sets the application's style sheet to the content of the file, which is Latin-1 text up to its
/// end or its first NUL byte. If the file cannot be opened, the application stays unstyled and a
/// debug message is written.
void applyStyleSheet(QApplication& app, const QString& path);

/// Centres the widget on a screen, rounding down.
void centre(QWidget& widget, const QRect& screen);

} // namespace Presentation

/// Shows the main window as the previous one was left; the very first one is 800 by 600 in the
/// middle of the primary screen. Opens the first of the files, and returns when the event loop
/// ends. Meanwhile other programs of the same user can pass files to it, see RunningInstance. The
/// news, if any, are shown in a message box.
void showMainWindow(QApplication& app, const QStringList& files = {}, const QStringList& news = {});
