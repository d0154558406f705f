#pragma once

#include <QStringList>

namespace FileArguments {

/// The files among the arguments of the window's program, as absolute paths, without the program's
/// own name. An argument that begins with a hyphen is not a file, unless it follows "--". URLs of
/// local files are accepted. The files need not exist.
[[nodiscard]] QStringList in(const QStringList& arguments);

} // namespace FileArguments
