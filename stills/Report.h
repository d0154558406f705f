#pragma once

#include "stills/OutputStream.h"

#include <QElapsedTimer>
#include <QSize>
#include <QString>

#include <optional>

namespace stills {

/// Numbers of pictures by result.
struct Tally
{
    int delivered = 0; ///< written
    int skipped = 0;   ///< omitted because they exist
    int failed = 0;    ///< errors, of pictures and of whole videos
    int sheets = 0;    ///< contact sheets written
};

/// The progress of a run.
struct ProgressState
{
    int videos = 1;              ///< of the run
    int video = 1;               ///< the current one, from 1
    QString name;                ///< of its file
    int pictures = 0;            ///< of this video so far, whatever their results
    std::optional<int> expected; ///< of this video
    double part = 0.0;           ///< completed fraction of this video, 0 to 1
    int total = 0;               ///< pictures of all videos so far
    qint64 elapsedMs = 0;
};

/// The progress line for this many columns, without a line break.
[[nodiscard]] QString progressText(const ProgressState& state, int columns);

/// The last line: "47 pictures in out (3 errors)".
/// @param place  such as "in out"; may be empty
[[nodiscard]] QString summaryText(const Tally& tally, const QString& place, bool isSheetAlone,
                                  bool wasInterrupted);

/// Reports to people and programs: error lines, the progress and the last line on standard error;
/// JSON objects on standard output. One thread at a time may use an object.
class Report
{
public:
    struct Style
    {
        bool isJson = false;
        bool showsProgress = false;
        bool isQuiet = false;
        bool isVerbose = false;
        bool isSheetAlone = false;
        QString place; ///< for the last line
    };

    /// A picture that was written.
    struct Picture
    {
        std::optional<qint64> askedMs;
        std::optional<qint64> timeMs;
        std::optional<qint64> frame;
        QString path; ///< empty for standard output
        QSize size;
    };

    Report(Style style, int videos);

    /// Call it before anything else about a video, with its index from 0.
    void beginVideo(int video, const QString& path);
    /// What is known about the video once it is open.
    void describeVideo(std::optional<int> expected, qint64 durationMs);
    void addPicture(const Picture& picture);
    /// Prints a note about the current video once, on a line like that of an error. Ignores an
    /// empty text.
    void noteOnce(const QString& text);
    /// Counts pictures that already exist.
    void addSkipped(int count);
    void addSheet(const QString& path, QSize size, int pictures);
    /// Reports something about the current video that failed.
    void addError(std::optional<qint64> askedMs, const QString& message);
    void endVideo();

    /// Reports an error outside any video, such as an unusable path.
    void addProblem(const QString& path, const QString& message);

    /// Call it after the last video.
    void finish(bool wasInterrupted);

    [[nodiscard]] const Tally& total() const { return m_total; }
    /// Results of the current video.
    [[nodiscard]] const Tally& ofVideo() const { return m_video; }
    /// True if the reader of standard output is gone, so that nothing more can be reported.
    [[nodiscard]] bool isReaderGone() const { return m_output.hasFailed(); }

private:
    void showProgress();
    void clearProgress();
    void writeLine(const QByteArray& line);
    void writeJson(const QByteArray& line);
    void writeError(const QString& path, std::optional<qint64> askedMs, const QString& message);

    Style m_style;
    OutputStream m_output;
    OutputStream m_errors;
    Tally m_total;
    Tally m_video;
    QString m_path;
    bool m_hasNote = false;
    std::optional<qint64> m_durationMs;
    ProgressState m_state;
    QElapsedTimer m_clock;
    qint64 m_shownMs = 0;
    bool m_isShown = false;
};

} // namespace stills
