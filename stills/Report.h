#pragma once

#include "stills/OutputStream.h"

#include <QElapsedTimer>
#include <QSize>
#include <QString>

#include <optional>

namespace stills {

/// How many pictures came to what end.
struct Tally
{
    int delivered = 0; ///< written
    int skipped = 0;   ///< left out because they exist
    int failed = 0;    ///< errors, of pictures and of whole videos
    int sheets = 0;    ///< contact sheets written
};

/// How far a run is.
struct ProgressState
{
    int videos = 1;              ///< of the run
    int video = 1;               ///< the one at work, from 1
    QString name;                ///< of its file
    int pictures = 0;            ///< of this video so far, whatever became of them
    std::optional<int> expected; ///< of this video
    double part = 0.0;           ///< of this video that is done, 0 to 1
    int total = 0;               ///< pictures of all videos so far
    qint64 elapsedMs = 0;
};

/// The line that shows progress, for so many columns, without an end of line.
[[nodiscard]] QString progressText(const ProgressState& state, int columns);

/// The last line: "47 pictures in out (3 errors)".
/// @param place  such as "in out"; may be empty
[[nodiscard]] QString summaryText(const Tally& tally, const QString& place, bool isSheetAlone,
                                  bool wasInterrupted);

/// Tells people and programs what happens: error lines, the progress and the last line on standard
/// error; JSON objects on standard output. One thread at a time.
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

    /// Before anything else is told of a video: its place, from 0.
    void beginVideo(int video, const QString& path);
    /// What is known of it once it is open.
    void describeVideo(std::optional<int> expected, qint64 durationMs);
    void addPicture(const Picture& picture);
    /// What people may want to know of the video at work, once for each, in a line like an error's.
    /// Nothing for an empty text.
    void noteOnce(const QString& text);
    /// Pictures that exist already.
    void addSkipped(int count);
    void addSheet(const QString& path, QSize size, int pictures);
    /// What was asked for of the video at work could not be had.
    void addError(std::optional<qint64> askedMs, const QString& message);
    void endVideo();

    /// An error outside of all videos begun, such as a path that cannot be used.
    void addProblem(const QString& path, const QString& message);

    /// After the last video.
    void finish(bool wasInterrupted);

    [[nodiscard]] const Tally& total() const { return m_total; }
    /// What became of the pictures of the video at work.
    [[nodiscard]] const Tally& ofVideo() const { return m_video; }
    /// The reader of standard output is gone: nothing more can be told.
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
