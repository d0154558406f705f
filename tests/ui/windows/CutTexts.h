#pragma once

#include <QStringList>

class QWidget;

namespace testsupport {

/// The labels and buttons shown in the window that have less room than their texts take.
[[nodiscard]] QStringList cutIn(const QWidget& window);

} // namespace testsupport
