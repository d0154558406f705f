#include <QtAV/QtAV_Global.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FFmpegLog.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib> // says whether the C library is GNU's
#include <mutex>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace QtAV {

Q_LOGGING_CATEGORY(lcQtAV, "qtav")

namespace {

std::atomic<LogLevel> chosenLevel{LogWarning};

thread_local int pausesOfThread = 0;

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
    if (level > av_log_get_level() || pausesOfThread > 0) {
        return;
    }
    char line[1024];
    // Continuing an unfinished line would need state; here each stands alone.
    int printPrefix = 1;
    av_log_format_line2(source, level, format, arguments, line, sizeof line, &printPrefix);
    const QString text = QString::fromUtf8(line).trimmed();
    if (text.isEmpty()) {
        return;
    }
    if (level <= AV_LOG_FATAL) {
        qCCritical(lcQtAV).noquote() << text;
    } else if (level <= AV_LOG_WARNING) {
        qCWarning(lcQtAV).noquote() << text;
    } else {
        qCDebug(lcQtAV).noquote() << text;
    }
}

} // namespace

void setLogLevel(LogLevel level)
{
    chosenLevel = level;
    av_log_set_level(ffmpegLevel(level));
    routeFFmpegLog();
}

LogLevel logLevel()
{
    return chosenLevel;
}

void trimFreedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void routeFFmpegLog()
{
    static std::once_flag once;
    std::call_once(once, [] {
        av_log_set_level(ffmpegLevel(chosenLevel));
        av_log_set_callback(writeToMessageLog);
    });
}

FFmpegLogPause::FFmpegLogPause()
{
    ++pausesOfThread;
}

FFmpegLogPause::~FFmpegLogPause()
{
    --pausesOfThread;
}

QString ffmpegErrorText(int error)
{
    switch (error) {
    case AVERROR_INVALIDDATA:
        return QCoreApplication::translate("QtAV", "The file is damaged, or no video.");
    case AVERROR(ENOENT):
        return QCoreApplication::translate("QtAV", "The file does not exist.");
    case AVERROR(EACCES):
    case AVERROR(EPERM):
        return QCoreApplication::translate("QtAV", "You are not allowed to read the file.");
    case AVERROR(ENOMEM):
        return QCoreApplication::translate("QtAV", "There is not enough memory.");
    case AVERROR_DECODER_NOT_FOUND:
    case AVERROR_PATCHWELCOME:
        return QCoreApplication::translate("QtAV", "This kind of video is not supported.");
    default:
        break;
    }
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return QCoreApplication::translate("QtAV", "The file cannot be read (%1).")
        .arg(QString::fromUtf8(text));
}

} // namespace QtAV
