#pragma once

#include <QString>

/// The name of the profile that is made where there is none: stored under one that looks like a
/// placeholder, as it ever was, and shown under one for people.
namespace ProfileNames {

/// What the profile is called in its file.
[[nodiscard]] QString storedStandard();

/// What people see of a stored name: the name itself, or "Standard" for storedStandard().
[[nodiscard]] QString shown(const QString& storedName);

} // namespace ProfileNames
