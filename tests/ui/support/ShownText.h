#pragma once

#include <QString>

namespace testsupport {

/// What a user sees of the text of a tool tip or a message box, which may be rich text.
[[nodiscard]] QString shownText(const QString& text);

} // namespace testsupport
