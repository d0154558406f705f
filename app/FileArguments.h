#pragma once

#include <QStringList>

namespace FileArguments {

/// The files among the arguments of the window's program, without its own name, as absolute paths.
/// What begins with a hyphen is none, unless it comes after "--"; addresses of local files count as
/// the files. Whether they exist is not looked at.
[[nodiscard]] QStringList in(const QStringList& arguments);

} // namespace FileArguments
