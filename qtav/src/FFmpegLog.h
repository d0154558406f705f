#pragma once

#include <QLoggingCategory>
#include <QString>

namespace QtAV {

/// The library's own lines, FFmpeg's included.
Q_DECLARE_LOGGING_CATEGORY(lcQtAV)

/// Makes FFmpeg write to Qt's message log; the first call does it. From any thread.
void routeFFmpegLog();

/// While one lives, what FFmpeg has to say on this thread is dropped: for calls whose complaints
/// are expected.
class FFmpegLogPause
{
public:
    FFmpegLogPause();
    ~FFmpegLogPause();
    FFmpegLogPause(const FFmpegLogPause&) = delete;
    FFmpegLogPause& operator=(const FFmpegLogPause&) = delete;
};

/// FFmpeg's own text for one of its error numbers.
QString ffmpegErrorText(int error);

} // namespace QtAV
