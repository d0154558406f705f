#pragma once

#include <QString>

/// What the product is called and where it is found. From any thread.
namespace ProductInfo {

/// The name of the application and of its organisation: together they fix where the settings are.
QString name();

/// The version of the release, such as "4.1.0": that of the CMake project.
QString version();

QString domain();

} // namespace ProductInfo
