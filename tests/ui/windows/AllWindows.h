#pragma once

#include <QList>
#include <QWidget>

#include <functional>

namespace testsupport {

using WindowVisitor = std::function<void(QWidget& window)>;

/// Shows the main window, with a video and a snapshot, and then each dialog, one after the other,
/// and has the visitor look at it; once for each page where there are tabs.
void visitAllWindows(const WindowVisitor& visit);

/// The same with the main window alone, and what belongs to it.
void visitMainWindow(const WindowVisitor& visit);

/// Gives the application the looks that the program has at first.
void useProgramsLooks();

/// What users work with that is shown in the window: buttons, fields, sliders, lists. Without the
/// parts that Qt makes such controls of.
[[nodiscard]] QList<QWidget*> controlsOf(const QWidget& window);

/// A name for a widget in the messages of tests.
[[nodiscard]] QString nameOf(const QWidget& widget);

} // namespace testsupport
