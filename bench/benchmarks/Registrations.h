#pragma once

namespace bench {

class Sandbox;

/// Each hands the benchmarks of one topic to Google Benchmark. Nothing is opened before they run;
/// one whose video is missing reports an error and does not stop the others.

/// Seeking and extracting with a FrameGrabber.
void registerExtraction();

/// VideoFrame::toImage() and FFmpeg's bare conversion of the same picture.
void registerConversion();

/// From the image to the file, and the bare parts of it. Files go into the sandbox, which must
/// outlive the run.
void registerOutput(const Sandbox& sandbox);

/// Loading and saving profiles, making file names.
void registerProfiles();

} // namespace bench
