#pragma once

#include <QString>

/// Name, version and addresses of the product. Callable from any thread.
namespace ProductInfo {

/// The name of the application and of its organisation, which together determine where settings are
/// stored.
QString name();

/// The version of the release, such as "4.1.0", taken from the CMake project.
QString version();

QString domain();

} // namespace ProductInfo
