#include "stills/Report.h"

#include "stills/JsonLine.h"
#include "stills/Texts.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <unistd.h>

namespace stills {

namespace {

constexpr qint64 progressIntervalMs = 100;

QString counted(int count, const char* one, const char* many)
{
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(count == 1 ? one : many);
}

QString shortened(const QString& name, int columns)
{
    return name.size() <= columns ? name : name.left(columns - 3) + QStringLiteral("...");
}

} // namespace

QString progressText(const ProgressState& state, int columns)
{
    constexpr int shortestName = 10;
    QString text = QStringLiteral("%1").arg(state.pictures);
    if (state.expected) {
        text += QStringLiteral("/%1").arg(*state.expected);
    }
    text += QStringLiteral(" pictures");
    const double seconds = static_cast<double>(state.elapsedMs) / 1000.0;
    if (state.total > 0 && seconds > 0.0) {
        text += QStringLiteral(", %1/s").arg(state.total / seconds, 0, 'f', 1);
    }
    const double part = (state.video - 1 + std::min(state.part, 1.0)) / std::max(state.videos, 1);
    if (part > 0.0 && state.elapsedMs > 0) {
        const double left = static_cast<double>(state.elapsedMs) * (1.0 - part) / part;
        text += QStringLiteral(", %1 left").arg(clockTime(static_cast<qint64>(left)));
    }
    const QString place = state.videos > 1
                              ? QStringLiteral("%1/%2 ").arg(state.video).arg(state.videos)
                              : QString();
    const int room = columns - place.size() - text.size() - 3;
    const QString name = shortened(readable(state.name), std::max(room, shortestName));
    return (place + name + QStringLiteral(": ") + text).left(std::max(columns - 1, 0));
}

QString summaryText(const Tally& tally, const QString& place, bool isSheetAlone,
                    bool wasInterrupted)
{
    QStringList things;
    if (!isSheetAlone) {
        things += counted(tally.delivered, "picture", "pictures");
    }
    if (isSheetAlone || tally.sheets > 0) {
        things += counted(tally.sheets, "contact sheet", "contact sheets");
    }
    QStringList notes;
    if (tally.skipped > 0) {
        notes += QStringLiteral("%1 skipped").arg(tally.skipped);
    }
    if (tally.failed > 0) {
        notes += counted(tally.failed, "error", "errors");
    }
    QString text = wasInterrupted ? QStringLiteral("interrupted: ") : QString();
    text += things.join(QStringLiteral(" and "));
    if (!place.isEmpty()) {
        text += QLatin1Char(' ') + place;
    }
    if (!notes.isEmpty()) {
        text += QStringLiteral(" (%1)").arg(notes.join(QStringLiteral(", ")));
    }
    return text;
}

Report::Report(const Style& style, int videos)
    : m_style(style)
    , m_output(STDOUT_FILENO)
    , m_errors(STDERR_FILENO)
{
    m_state.videos = videos;
    m_clock.start();
    const bool isOneTerminal = style.isJson && m_output.isTerminal();
    m_style.showsProgress = style.showsProgress ||
                            (!style.isQuiet && !isOneTerminal && m_errors.isTerminal());
}

void Report::beginVideo(int video, const QString& path, std::optional<int> expected,
                        qint64 durationMs)
{
    m_state.video = video + 1;
    m_state.name = QFileInfo(path).fileName();
    m_state.pictures = 0;
    m_state.expected = expected;
    m_state.part = 0.0;
    m_durationMs = durationMs;
    showProgress({});
}

void Report::addPicture(const Picture& picture)
{
    ++m_video.delivered;
    if (m_style.isJson) {
        JsonLine line(QLatin1String("image"));
        line.add(QLatin1String("video"), m_state.name);
    }
    if (m_style.isVerbose) {
        writeLine(oneLine(picture.path));
    }
    showProgress(picture.timeMs);
}

void Report::addSkipped(int count)
{
    m_video.skipped += count;
}

void Report::clearProgress()
{
    if (m_isShown) {
        m_errors.write(QByteArrayLiteral("\r\033[K"));
        m_isShown = false;
    }
}

void Report::writeLine(const QByteArray& line)
{
    clearProgress();
    m_errors.write(line + '\n');
}

void Report::showProgress(std::optional<qint64> timeMs)
{
    Q_UNUSED(timeMs)
}

} // namespace stills
