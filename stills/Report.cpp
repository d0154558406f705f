#include "stills/Report.h"

#include "stills/JsonLine.h"
#include "stills/Texts.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <unistd.h>
#include <utility>

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
    const QString place =
        state.videos > 1 ? QStringLiteral("%1/%2 ").arg(state.video).arg(state.videos) : QString();
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

Report::Report(Style style, int videos)
    : m_style(std::move(style))
    , m_output(STDOUT_FILENO)
    , m_errors(STDERR_FILENO)
{
    m_state.videos = videos;
    m_clock.start();
    const bool isOneTerminal = m_style.isJson && m_output.isTerminal();
    m_style.showsProgress =
        m_style.showsProgress || (!m_style.isQuiet && !isOneTerminal && m_errors.isTerminal());
}

void Report::beginVideo(int video, const QString& path)
{
    m_path = path;
    m_video = Tally();
    m_hasNote = false;
    m_durationMs.reset();
    m_state.video = video + 1;
    m_state.name = QFileInfo(path).fileName();
    m_state.pictures = 0;
    m_state.expected.reset();
    m_state.part = 0.0;
}

void Report::describeVideo(std::optional<int> expected, qint64 durationMs)
{
    m_state.expected = expected;
    m_durationMs = durationMs;
    showProgress();
}

void Report::addPicture(const Picture& picture)
{
    ++m_video.delivered;
    ++m_total.delivered;
    ++m_state.total;
    ++m_state.pictures;
    if (m_state.expected && *m_state.expected > 0) {
        m_state.part = static_cast<double>(m_state.pictures) / *m_state.expected;
    } else if (picture.timeMs && m_durationMs && *m_durationMs > 0) {
        m_state.part = static_cast<double>(*picture.timeMs) / static_cast<double>(*m_durationMs);
    }
    if (m_style.isJson) {
        writeJson(JsonLine(QLatin1String("image"))
                      .add(QLatin1String("video"), m_path)
                      .add(QLatin1String("asked_ms"), picture.askedMs)
                      .add(QLatin1String("time_ms"), picture.timeMs)
                      .add(QLatin1String("frame"), picture.frame)
                      .add(QLatin1String("path"), picture.path)
                      .add(QLatin1String("width"), picture.size.width())
                      .add(QLatin1String("height"), picture.size.height())
                      .line());
    }
    if (m_style.isVerbose && !picture.path.isEmpty()) {
        writeLine(oneLine(picture.path));
    }
    showProgress();
}

void Report::addSkipped(int count)
{
    m_video.skipped += count;
    m_total.skipped += count;
}

void Report::addSheet(const QString& path, QSize size, int pictures)
{
    ++m_video.sheets;
    ++m_total.sheets;
    if (m_style.isJson) {
        writeJson(JsonLine(QLatin1String("sheet"))
                      .add(QLatin1String("video"), m_path)
                      .add(QLatin1String("path"), path)
                      .add(QLatin1String("pictures"), pictures)
                      .add(QLatin1String("width"), size.width())
                      .add(QLatin1String("height"), size.height())
                      .line());
    }
    if (m_style.isVerbose && !path.isEmpty()) {
        writeLine(oneLine(path));
    }
}

void Report::addError(std::optional<qint64> askedMs, const QString& message)
{
    ++m_video.failed;
    ++m_total.failed;
    writeError(m_path, askedMs, message);
}

void Report::noteOnce(const QString& text)
{
    if (text.isEmpty() || m_hasNote || m_style.isQuiet) {
        return;
    }
    m_hasNote = true;
    writeLine("stills: " + oneLine(m_path + QStringLiteral(": ") + text));
}

void Report::addProblem(const QString& path, const QString& message)
{
    ++m_total.failed;
    writeError(path, {}, message);
}

void Report::writeError(const QString& path, std::optional<qint64> askedMs, const QString& message)
{
    QString text = path;
    if (askedMs) {
        text += QStringLiteral(" at ") + exactClockTime(*askedMs);
    }
    writeLine("stills: " + oneLine(text + QStringLiteral(": ") + message));
    if (m_style.isJson) {
        writeJson(JsonLine(QLatin1String("error"))
                      .add(QLatin1String("video"), path)
                      .add(QLatin1String("asked_ms"), askedMs)
                      .add(QLatin1String("message"), message)
                      .line());
    }
}

void Report::endVideo()
{
    m_state.part = 1.0;
    if (m_style.isJson) {
        writeJson(JsonLine(QLatin1String("video"))
                      .add(QLatin1String("video"), m_path)
                      .add(QLatin1String("duration_ms"), m_durationMs)
                      .add(QLatin1String("delivered"), m_video.delivered)
                      .add(QLatin1String("skipped"), m_video.skipped)
                      .add(QLatin1String("failed"), m_video.failed)
                      .line());
    }
    showProgress();
}

void Report::finish(bool wasInterrupted)
{
    clearProgress();
    if (m_style.isJson) {
        writeJson(JsonLine(QLatin1String("summary"))
                      .add(QLatin1String("videos"), m_state.videos)
                      .add(QLatin1String("delivered"), m_total.delivered)
                      .add(QLatin1String("skipped"), m_total.skipped)
                      .add(QLatin1String("failed"), m_total.failed)
                      .addTruth(QLatin1String("interrupted"), wasInterrupted)
                      .add(QLatin1String("elapsed_ms"), m_clock.elapsed())
                      .line());
    } else if (!m_style.isQuiet) {
        writeLine(
            oneLine(summaryText(m_total, m_style.place, m_style.isSheetAlone, wasInterrupted)));
    }
}

void Report::showProgress()
{
    const qint64 now = m_clock.elapsed();
    if (!m_style.showsProgress || (m_isShown && now - m_shownMs < progressIntervalMs)) {
        return;
    }
    m_shownMs = now;
    m_isShown = true;
    m_state.elapsedMs = now;
    m_errors.write("\r" + oneLine(progressText(m_state, m_errors.columns())) + "\033[K");
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

void Report::writeJson(const QByteArray& line)
{
    m_output.write(line);
}

} // namespace stills
