#pragma once

#include <QLoggingCategory>
#include <QString>

namespace QtAV {

/// Messages of this library and of FFmpeg.
Q_DECLARE_LOGGING_CATEGORY(lcQtAV)

/// Redirects FFmpeg's messages to Qt's message log; only the first call has an effect. From any
/// thread.
void routeFFmpegLog();

/// Drops FFmpeg's messages of this thread during its lifetime, for calls whose complaints are
/// expected.
class FFmpegLogPause
{
public:
    FFmpegLogPause();
    ~FFmpegLogPause();
    FFmpegLogPause(const FFmpegLogPause&) = delete;
    FFmpegLogPause& operator=(const FFmpegLogPause&) = delete;
};

/// FFmpeg's text for one of its error numbers.
QString ffmpegErrorText(int error);

} // namespace QtAV
