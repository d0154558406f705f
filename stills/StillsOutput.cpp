#include "stills/StillsOutput.h"

#include "imaging/FilePublisher.h"
#include "imaging/Rendering.h"
#include "stills/Interruption.h"
#include "stills/Texts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <unistd.h>

namespace stills {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("stills", text);
}

QString sheetTooLargeText()
{
    return tr("The contact sheet would be too large; ask for fewer pictures.");
}

/// A key for a position; the last frame has no time of its own.
qint64 keyOf(const SeriesTarget& target)
{
    return target.isLast ? -1 : target.ms;
}

} // namespace

StillsOutput::StillsOutput(const Options& options, const Look& look,
                           const std::vector<VideoTask>& tasks, Report& report)
    : m_options(options)
    , m_look(look)
    , m_tasks(tasks)
    , m_report(report)
    , m_names(options, look.naming, look.suffix)
    , m_files(options.existing)
    , m_standardOutput(STDOUT_FILENO)
{}

StillsOutput::~StillsOutput() = default;

/// Close positions can mean the same frame, whose picture has the name of the first of them.
/// Whether the others need a picture can only be decided together with the position before them, so
/// that one is needed as well.
void StillsOutput::announce(int video, const QVector<SeriesTarget>& targets)
{
    const VideoTask& task = m_tasks[static_cast<std::size_t>(video)];
    Plan plan;
    bool isNextMissing = false;
    for (int i = targets.size() - 1; i >= 0; --i) {
        const SeriesTarget& target = targets.at(i);
        const bool isThisMissing = isMissing(task, target, i + 1);
        if (isThisMissing || isNextMissing) {
            plan.needed.insert(keyOf(target));
        } else {
            ++plan.skipped;
        }
        isNextMissing = isThisMissing;
        if (target.isLast) {
            plan.lastNumber = i + 1;
        } else {
            plan.numbers.insert(target.ms, i + 1);
        }
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_plans.insert(video, plan);
}

bool StillsOutput::needs(int video, const SeriesTarget& target)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto plan = m_plans.constFind(video);
    return plan == m_plans.constEnd() || plan->needed.contains(keyOf(target));
}

bool StillsOutput::isMissing(const VideoTask& task, const SeriesTarget& target, int number) const
{
    // A sheet needs existing pictures, too.
    if (m_options.existing != Existing::Skip || m_options.sheet) {
        return true;
    }
    const auto name = m_names.nameBefore(task, target, number);
    return !name || !PictureFiles::exists(pathOf(task.folder), *name);
}

void StillsOutput::beginVideo(int video)
{
    if (m_begun == video) {
        return;
    }
    m_begun = video;
    m_isOnly = false;
    m_expected.reset();
    m_durationMs = 0;
    m_pictureSize = QSize();
    m_sheet.reset();
    if (m_options.sheet) {
        m_sheet = std::make_unique<ContactSheet>(*m_options.sheet);
    }
    m_report.beginVideo(video, pathOf(m_tasks[static_cast<std::size_t>(video)].path));
}

/// If there is no room, the later write reports it. With overwriting, nothing is prepared: such a
/// picture is written only in its turn.
void StillsOutput::store(SeriesPicture& picture)
{
    const bool hasFile = m_options.makesPictures && !m_options.writesToStandardOutput &&
                         m_options.existing != Existing::Overwrite;
    if (!hasFile || picture.content.isEmpty() || m_wantsToStop) {
        return;
    }
    const QString folder = pathOf(m_tasks[static_cast<std::size_t>(picture.video)].folder);
    picture.file = FilePublisher::prepare(folder, picture.content);
    if (picture.file) {
        m_preparedBytes += FilePublisher::sizeOf(*picture.file);
        picture.content.clear();
    }
}

void StillsOutput::begin(const SeriesFacts& facts)
{
    beginVideo(facts.video);
    m_durationMs = facts.durationMs;
    m_expected = facts.expected;
    int skipped = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        skipped = m_plans.value(facts.video).skipped;
    }
    m_isOnly = facts.expected && *facts.expected + skipped == 1;
    m_report.describeVideo(facts.expected, facts.durationMs);
    m_report.addSkipped(skipped);
}

/// Derived from the position, so that a run that skips pictures numbers like one that makes them
/// all.
int StillsOutput::numberOf(const SeriesPicture& picture)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto plan = m_plans.constFind(picture.video);
    if (plan == m_plans.constEnd()) {
        return picture.number;
    }
    if (picture.askedMs) {
        return plan->numbers.value(*picture.askedMs, picture.number);
    }
    // Except for video-defined positions, only the last frame has no requested time.
    return plan->lastNumber > 0 ? plan->lastNumber : picture.number;
}

void StillsOutput::take(SeriesPicture picture)
{
    if (m_wantsToStop) {
        return;
    }
    if (picture.file) {
        m_preparedBytes -= FilePublisher::sizeOf(*picture.file);
    }
    // The engine gives the last frame there, which is not what was requested.
    if (picture.askedMs && picture.askedMs > m_durationMs) {
        picture.error = tr("The video ends at %1.").arg(exactClockTime(m_durationMs));
    }
    if (!picture.error.isEmpty()) {
        m_report.addError(picture.askedMs, picture.error);
        m_wantsToStop = m_wantsToStop || m_options.failsFast;
        return;
    }
    m_pictureSize = picture.size;
    m_report.noteOnce(QtAV::textOf(picture.baseLayer));
    if (m_sheet && !m_sheet->add(picture.thumbnail, picture.timeMs.value_or(0))) {
        failVideo(m_sheet->count() < ContactSheet::mostPictures
                      ? sheetTooLargeText()
                      : tr("More than %1 pictures have no place on a contact sheet.")
                            .arg(ContactSheet::mostPictures));
        m_sheet.reset();
    }
    if (m_options.makesPictures) {
        writePicture(picture, numberOf(picture));
    }
}

void StillsOutput::writePicture(const SeriesPicture& picture, int number)
{
    const VideoTask& task = m_tasks[static_cast<std::size_t>(picture.video)];
    Report::Picture written{picture.askedMs, picture.timeMs, picture.frame, {}, picture.size};
    if (m_options.writesToStandardOutput) {
        if (m_standardOutput.write(picture.content)) {
            m_report.addPicture(written);
        } else {
            failStandardOutput(picture.askedMs);
        }
        return;
    }
    auto outcome = m_files.write(
        pathOf(task.folder),
        [&](int attempt) { return m_names.name(task, picture, number, m_isOnly, attempt); },
        {picture.content, picture.file});
    switch (outcome.kind) {
    case PictureFiles::Outcome::Kind::Written:
        written.path = outcome.path;
        m_room.addWritten(outcome.bytes);
        m_report.addPicture(written);
        break;
    case PictureFiles::Outcome::Kind::Skipped:
        m_report.addSkipped(1);
        break;
    case PictureFiles::Outcome::Kind::Failed:
    case PictureFiles::Outcome::Kind::NoRoom:
        outcome.error += roomText(picture, outcome);
        fail(picture.askedMs, outcome);
        break;
    }
    // If the program that reads the report is gone, the rest is not wanted.
    m_wantsToStop = m_wantsToStop || m_report.isReaderGone();
}

void StillsOutput::fail(std::optional<qint64> askedMs, const PictureFiles::Outcome& outcome)
{
    m_report.addError(askedMs, outcome.error);
    const bool isHopeless = outcome.kind == PictureFiles::Outcome::Kind::NoRoom &&
                            (hasOneFolder() || m_options.writesToStandardOutput);
    m_wantsToStop = m_wantsToStop || isHopeless || m_options.failsFast;
}

/// After a signal, the picture was given up for that reason, which is no error.
void StillsOutput::failStandardOutput(std::optional<qint64> askedMs)
{
    if (Interruption::signalNumber() == 0) {
        fail(askedMs, {PictureFiles::Outcome::Kind::NoRoom, {}, tr("Nobody reads the pictures.")});
    }
}

/// What the rest of the run needs on a disk that is full; empty where nobody knows, where nothing
/// is left, and for another failure.
QString StillsOutput::roomText(const SeriesPicture& picture, const PictureFiles::Outcome& outcome)
{
    const PicturesLeft left = picturesLeft(picture.number);
    if (outcome.missingBytes == 0 || left.count < 2) {
        return {};
    }
    const qint64 missing =
        m_room.missingFor(left.count, outcome.bytes, outcome.missingBytes, m_preparedBytes);
    return QStringLiteral(", ") + RoomEstimate::text(missing, left);
}

/// From the picture of that number of the video at work on, if the run ends there.
PicturesLeft StillsOutput::picturesLeft(int number)
{
    if (!m_expected || !hasOneFolder()) {
        return {};
    }
    const int ofVideo = *m_expected - number + 1;
    int ofAll = ofVideo;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (int video = m_begun + 1; video < static_cast<int>(m_tasks.size()); ++video) {
        const std::optional<int> count = expectedOf(video);
        if (!count) {
            return {ofVideo, true};
        }
        ofAll += *count;
    }
    return {ofAll, false};
}

/// Of a video that has not begun; needs the lock. Nothing where only opening it would tell.
std::optional<int> StillsOutput::expectedOf(int video) const
{
    const auto plan = m_plans.constFind(video);
    if (plan != m_plans.constEnd()) {
        return plan->needed.size();
    }
    switch (m_options.positions.kind) {
    case FramePositions::Kind::Spread:
    case FramePositions::Kind::Best:
        return m_options.positions.count;
    case FramePositions::Kind::List:
        return static_cast<int>(m_options.positions.list.size());
    default:
        return std::nullopt;
    }
}

void StillsOutput::failVideo(const QString& message)
{
    m_report.addError({}, message);
    m_wantsToStop = m_wantsToStop || m_options.failsFast;
}

void StillsOutput::end(int video, const QString& error)
{
    beginVideo(video);
    if (!error.isEmpty()) {
        failVideo(error);
    }
    if (m_sheet && m_sheet->count() > 0 && !m_wantsToStop) {
        finishSheet(m_tasks[static_cast<std::size_t>(video)]);
    }
    const Tally& tally = m_report.ofVideo();
    const bool isNothing =
        tally.delivered + tally.skipped + tally.failed + tally.sheets == 0 && !m_wantsToStop;
    if (isNothing) {
        failVideo(tr("There is no picture at the positions that were asked for."));
    }
    m_report.endVideo();
    m_wantsToStop = m_wantsToStop || m_report.isReaderGone();
    m_sheet.reset();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_plans.remove(video);
}

/// "1:35:20, 1920 x 1080, 734.2 MB"
QString StillsOutput::factsText() const
{
    const VideoTask& task = m_tasks[static_cast<std::size_t>(m_begun)];
    const QChar dot(0x00b7);
    const QString between = QStringLiteral("   ") + dot + QStringLiteral("   ");
    QString text = clockTime(m_durationMs);
    if (m_look.recipe.keepsSize) {
        text += between + QStringLiteral("%1 %2 %3")
                              .arg(m_pictureSize.width())
                              .arg(QChar(0x00d7))
                              .arg(m_pictureSize.height());
    }
    const qint64 bytes = QFileInfo(pathOf(task.path)).size();
    return text + between + QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

void StillsOutput::finishSheet(const VideoTask& task)
{
    const QString title = readable(QFileInfo(pathOf(task.path)).fileName());
    const QImage sheet = m_sheet->draw(title, factsText());
    if (sheet.isNull()) {
        failVideo(sheetTooLargeText());
        return;
    }
    writeSheet(task, sheet);
}

void StillsOutput::writeSheet(const VideoTask& task, const QImage& sheet)
{
    const int pictures = m_sheet->count();
    const QByteArray content = imaging::encode(sheet, m_look.recipe.jpegQuality, m_look.suffix);
    if (content.isEmpty()) {
        failVideo(tr("The contact sheet could not be encoded as %1.").arg(m_look.suffix));
        return;
    }
    if (m_options.writesToStandardOutput) {
        if (m_standardOutput.write(content)) {
            m_report.addSheet({}, sheet.size(), pictures);
        } else {
            failStandardOutput({});
        }
        return;
    }
    const auto outcome = m_files.write(
        pathOf(task.folder), [&](int attempt) { return m_names.sheetName(task, attempt); },
        content);
    if (outcome.kind == PictureFiles::Outcome::Kind::Written) {
        m_report.addSheet(outcome.path, sheet.size(), pictures);
    } else if (outcome.kind == PictureFiles::Outcome::Kind::Skipped) {
        m_report.addSkipped(1);
    } else {
        fail({}, outcome);
    }
}

} // namespace stills
