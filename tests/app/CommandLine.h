#pragma once

#include "tests/support/RunProgram.h"

#include <QImage>
#include <QList>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// Runs the command line's program as users do, and inspects its results.
namespace commandline {

/// 520 frames in groups of 250.
inline const QString longSample = QStringLiteral("h264_gop250.mp4");

/// The program's path.
[[nodiscard]] QString program();

/// The environment of a machine without a display, with a home of its own.
[[nodiscard]] QProcessEnvironment environment();

/// Runs the program until it ends.
[[nodiscard]] testsupport::ProgramResult run(const QStringList& arguments);

/// Copies a sample into the folder, under its own or another name. Returns the copy's path.
QString copySample(const QString& sample, const QString& folder, const QString& name = {});

/// The names of all files in the folder except videos, including hidden ones, sorted.
[[nodiscard]] QStringList imagesIn(const QString& folder);

/// The numbers of the frames in these images, in order; -1 for an image without a readable one.
[[nodiscard]] QList<int> numbersIn(const QString& folder);

} // namespace commandline
