#include <QtAV/QtAV_Global.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FFmpegLog.h"

#include <QLoggingCategory>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace QtAV {

Q_LOGGING_CATEGORY(lcQtAV, "qtav")

namespace {

std::atomic<LogLevel> s_level{LogWarning};

thread_local int t_pauses = 0;

int ffmpegLevel(LogLevel level)
{
    switch (level) {
    case LogOff:
        return AV_LOG_QUIET;
    case LogFatal:
        return AV_LOG_PANIC;
    case LogCritical:
        return AV_LOG_FATAL;
    case LogWarning:
        return AV_LOG_WARNING;
    case LogDebug:
        return AV_LOG_VERBOSE;
    case LogAll:
        break;
    }
    return AV_LOG_TRACE;
}

void writeToMessageLog(void* source, int level, const char* format, va_list arguments)
{
    if (level > av_log_get_level() || t_pauses > 0)
        return;
    char line[1024];
    // A line that goes on where the last one ended would need state; each stands for itself here.
    int printPrefix = 1;
    av_log_format_line2(source, level, format, arguments, line, sizeof line, &printPrefix);
    const QString text = QString::fromUtf8(line).trimmed();
    if (text.isEmpty())
        return;
    if (level <= AV_LOG_FATAL)
        qCCritical(lcQtAV).noquote() << text;
    else if (level <= AV_LOG_WARNING)
        qCWarning(lcQtAV).noquote() << text;
    else
        qCDebug(lcQtAV).noquote() << text;
}

} // namespace

void setLogLevel(LogLevel level)
{
    s_level = level;
    av_log_set_level(ffmpegLevel(level));
    routeFFmpegLog();
}

LogLevel logLevel()
{
    return s_level;
}

void routeFFmpegLog()
{
    static std::once_flag once;
    std::call_once(once, [] {
        av_log_set_level(ffmpegLevel(s_level));
        av_log_set_callback(writeToMessageLog);
    });
}

FFmpegLogPause::FFmpegLogPause()
{
    ++t_pauses;
}

FFmpegLogPause::~FFmpegLogPause()
{
    --t_pauses;
}

QString ffmpegErrorText(int error)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return QString::fromUtf8(text);
}

} // namespace QtAV
