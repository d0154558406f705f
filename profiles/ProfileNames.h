#pragma once

#include <QString>

/// Names of the profile that is created if there is none. Its stored name, kept for compatibility,
/// looks like a placeholder; people see another one.
namespace ProfileNames {

/// The name of the profile in its file.
[[nodiscard]] QString storedStandard();

/// The name to show for a stored name: "Standard" for storedStandard(), otherwise the name itself.
[[nodiscard]] QString shown(const QString& storedName);

} // namespace ProfileNames
