#pragma once

#include <QString>

/// Makes small videos of an exact length, where the sample set has none of it.
namespace testsupport {

/// Writes a QuickTime video of `frames` frames that are shown `frameMs` milliseconds each; every
/// frame is a key frame. Ends the test program when that fails.
void makeVideo(const QString& path, int frames, int frameMs);

/// The same with a key frame only at the front.
void makeVideoWithOneKeyFrame(const QString& path, int frames, int frameMs);

/// Makes a file that FFmpeg reads for longer than any test may take, several minutes at least,
/// before it turns out to be unreadable: the head of a Matroska video and many gigabytes of
/// nothing, which take no room on the disk. Needs the sample videos. Ends the test program when
/// that fails.
void makeSlowVideo(const QString& path);

} // namespace testsupport
