#pragma once

namespace bench {

class Sandbox;

/// Each function registers the benchmarks of one topic with Google Benchmark. Nothing is opened
/// before they run; one without its video reports an error and does not stop the others.

/// Seeking and extracting with a FrameGrabber.
void registerExtraction();

/// VideoFrame::toImage() and FFmpeg's bare conversion of the same picture.
void registerConversion();

/// From the image to the file, and the bare library calls. Files go into the sandbox, which must
/// outlive the run.
void registerOutput(const Sandbox& sandbox);

/// Loading and saving profiles, making file names.
void registerProfiles();

} // namespace bench
