#pragma once

#include <QString>

/// A text for tool tips and message boxes, which guess whether a text is rich: the same text,
/// marked up so that it is shown as it is if they would take it for rich text. For texts with names
/// of files, folders and profiles, which may look like markup.
[[nodiscard]] QString asPlainText(const QString& text);
