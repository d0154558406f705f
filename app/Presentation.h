#pragma once

#include <QString>
#include <QStringList>

class QApplication;
class QRect;
class QWidget;

/// How the window comes onto the screen. User-interface thread only.
namespace Presentation {

/// Gives the application the style sheet in the file, which holds Latin-1 text up to its end or its
/// first NUL byte. A file that cannot be opened leaves the application unstyled and is noted on the
/// debug stream.
void applyStyleSheet(QApplication& app, const QString& path);

/// Moves the widget so that it is as far from the left edge of a screen as from the right one, and
/// as far from the upper as from the lower, to the pixel below.
void centre(QWidget& widget, const QRect& screen);

} // namespace Presentation

/// Shows the main window as the last one was left, the first one 800 by 600 and in the middle of
/// the primary screen; opens the first of the files, and returns when the event loop ends.
/// Meanwhile other programs of the same user can pass files to it, see RunningInstance. The news,
/// if there are any, are told in a box beside it.
void showMainWindow(QApplication& app, const QStringList& files = {}, const QStringList& news = {});
