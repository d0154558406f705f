#include "stills/StillsRun.h"

#include "app/MemoryPolicy.h"
#include "app/RuntimeFolder.h"
#include "product/ProductInfo.h"
#include "profiles/SettingsFile.h"
#include "stills/FileNameCodec.h"
#include "stills/Interruption.h"
#include "stills/Like.h"
#include "stills/Profiles.h"
#include "stills/Report.h"
#include "stills/StillsOutput.h"
#include "stills/Texts.h"
#include "stills/VideoList.h"
#include "stills/VideoTask.h"

#include <QtAV/QtAV_Global.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>

namespace stills {

namespace {

constexpr int allDone = 0;
constexpr int someFailed = 1;
constexpr int wrongUsage = 2;
constexpr int signalStatus = 128;

constexpr QSize usualSheetPicture(320, 320);

/// Debug messages are for developers, who enable them with QT_LOGGING_RULES.
void hideDebugLines()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

/// Drawing text needs Qt's fonts, and so a platform plugin; the one used needs no display. Without
/// text, the plain application object starts faster.
std::unique_ptr<QCoreApplication> makeApplication(bool needsFonts)
{
    static int count = 1;
    static char name[] = "stills";
    static char* arguments[] = {name, nullptr};
    if (!needsFonts) {
        return std::make_unique<QCoreApplication>(count, arguments);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const RuntimeFolder folder;
    return std::make_unique<QGuiApplication>(count, arguments);
}

QVector<SeriesJob> jobsOf(const Options& options, const Look& look,
                          const std::vector<VideoTask>& tasks)
{
    SeriesJob job;
    job.positions = options.positions;
    job.recipe = look.recipe;
    job.type = options.makesPictures ? look.suffix : QString();
    job.numbersFrames =
        options.makesPictures && !look.naming && options.names.uses(NameTemplate::Field::Frame);
    if (options.sheet) {
        const bool isChosen = options.size && !options.makesPictures;
        job.thumbnail =
            isChosen ? QSize(options.size->width, options.size->height) : usualSheetPicture;
    }
    QVector<SeriesJob> jobs;
    for (const VideoTask& task : tasks) {
        job.video = pathOf(task.path);
        jobs.append(job);
    }
    return jobs;
}

QString placeOf(const Options& options)
{
    if (options.writesToStandardOutput) {
        return QStringLiteral("on standard output");
    }
    if (options.folder) {
        return QStringLiteral("in ") + readable(pathOf(*options.folder));
    }
    return QStringLiteral("beside the videos");
}

Report::Style styleOf(const Options& options)
{
    Report::Style style;
    style.isJson = options.isJson;
    style.showsProgress = options.showsProgress;
    style.isQuiet = options.isQuiet;
    style.isVerbose = options.isVerbose;
    style.isSheetAlone = !options.makesPictures;
    style.place = placeOf(options);
    return style;
}

/// Makes sure that the folder for the pictures exists. Returns an error text if it cannot be
/// created.
QString prepareFolder(const Options& options)
{
    if (!options.folder) {
        return {};
    }
    const QString folder = pathOf(*options.folder);
    if (QFileInfo(folder).exists() && !QFileInfo(folder).isDir()) {
        return QStringLiteral("This is no folder");
    }
    if (!QDir().mkpath(folder)) {
        return QStringLiteral("This folder cannot be made");
    }
    return QFileInfo(folder).isWritable() ? QString()
                                          : QStringLiteral("This folder does not let you write");
}

/// Encoded pictures of one video have all sizes, and freed memory between them would not be reused.
void chooseMemoryPolicy(int videos)
{
    constexpr int encodedPictureBytes = 128 << 10;
    if (videos > 1) {
        MemoryPolicy::keepFreedMemory();
    } else {
        MemoryPolicy::returnFreedMemory(encodedPictureBytes);
    }
}

/// One run, once the application object is there.
class Run
{
public:
    Run(const Options& options, const Look& look)
        : m_options(options)
        , m_look(look)
    {}

    [[nodiscard]] int execute();

private:
    [[nodiscard]] std::vector<VideoTask> chooseTasks(const std::vector<std::string>& videos);
    [[nodiscard]] bool isDone(const VideoTask& task) const;
    void reportProblems(const VideoList& list, Report& report) const;
    [[nodiscard]] bool work(const std::vector<VideoTask>& tasks, Report& report) const;

    const Options& m_options;
    const Look& m_look;
    int m_done = 0;
};

/// Whether only the sheet of a video is requested, and exists.
bool Run::isDone(const VideoTask& task) const
{
    if (m_options.makesPictures || m_options.existing != Existing::Skip) {
        return false;
    }
    const PictureNames names(m_options, m_look.naming, m_look.suffix);
    return PictureFiles::exists(pathOf(task.folder), names.sheetName(task, 1));
}

std::vector<VideoTask> Run::chooseTasks(const std::vector<std::string>& videos)
{
    const std::vector<VideoTask> all = planTasks(videos, m_options.folder);
    std::vector<VideoTask> chosen;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (!isInShard(i, m_options.shard)) {
            continue;
        }
        if (isDone(all[i])) {
            ++m_done;
        } else {
            chosen.push_back(all[i]);
        }
    }
    return chosen;
}

/// One of several shards reports what all of them would. But each says if its list may lack videos:
/// shards on other machines may have read it.
void Run::reportProblems(const VideoList& list, Report& report) const
{
    for (const VideoList::Problem& problem : list.problems) {
        if (problem.hidesVideos || m_options.shard.number == 1) {
            report.addProblem(pathOf(problem.path), QString::fromStdString(problem.text));
        }
    }
}

/// Returns true unless an error ended the run.
bool Run::work(const std::vector<VideoTask>& tasks, Report& report) const
{
    StillsOutput output(m_options, m_look, tasks, report);
    const QVector<SeriesJob> jobs = jobsOf(m_options, m_look, tasks);
    chooseMemoryPolicy(jobs.size());
    const auto isCancelled = [&output] {
        return output.wantsToStop() || Interruption::signalNumber() != 0;
    };
    SeriesOptions resources;
    resources.lanes = m_options.jobs;
    resources.memoryBytes = m_options.memoryBytes;
    if (m_options.pictureBytes) {
        resources.pictureBytes = *m_options.pictureBytes;
    }
    if (m_options.positionTimeoutMs) {
        resources.positionTimeout = std::chrono::milliseconds(*m_options.positionTimeoutMs);
    }
    static_cast<void>(series::run(jobs, output, isCancelled, resources));
    return !output.wantsToStop();
}

int Run::execute()
{
    const VideoList list = findVideos(m_options);
    const std::vector<VideoTask> tasks = chooseTasks(list.videos);
    Report report(styleOf(m_options), static_cast<int>(tasks.size()) + m_done);
    report.addSkipped(m_done);
    reportProblems(list, report);
    const QString folderError = prepareFolder(m_options);
    if (!folderError.isEmpty()) {
        report.addProblem(pathOf(*m_options.folder), folderError);
    }
    const bool isHopeless =
        !folderError.isEmpty() || (m_options.failsFast && report.total().failed > 0);
    const bool isThrough = !isHopeless && work(tasks, report);
    const int signal = Interruption::signalNumber();
    report.finish(signal != 0);
    if (signal != 0) {
        return signalStatus + signal;
    }
    const bool isAllThere = isThrough && report.total().failed == 0 && !report.isReaderGone();
    return isAllThere ? allDone : someFailed;
}

int refuse(const std::string& error)
{
    std::fprintf(stderr, "stills: %s\n", error.c_str());
    return wrongUsage;
}

/// Moves unreadable settings aside and reports them once.
void tellDamagedSettings()
{
    for (const SettingsFile::PutAside& damaged : SettingsFile::putDamagedAside()) {
        std::fprintf(stderr, "stills: %s\n", bytesOf(SettingsFile::text(damaged)).c_str());
    }
}

int runWith(const Options& options, const imaging::StillOrigin* like)
{
    const Result<Look> look = lookOf(options, like);
    return look.isGood() ? Run(options, *look.value).execute() : refuse(look.error);
}

int runLike(const Options& options)
{
    const Result<Likeness> likeness = likenessOf(options);
    return likeness.isGood() ? runWith(likeness.value->options, &likeness.value->origin)
                             : refuse(likeness.error);
}

} // namespace

int run(const Options& options)
{
    Interruption::install();
    FileNameCodec::install();
    hideDebugLines();
    const bool needsFonts = options.sheet || options.watermark || options.profile || options.like;
    const auto application = makeApplication(needsFonts);
    QCoreApplication::setApplicationName(ProductInfo::name());
    QCoreApplication::setOrganizationName(ProductInfo::name());
    QCoreApplication::setOrganizationDomain(ProductInfo::domain());
    QCoreApplication::setApplicationVersion(ProductInfo::version());
    QtAV::setLogLevel(QtAV::LogCritical);
    if (options.profile || options.nameProfile || options.watermark) {
        tellDamagedSettings();
    }
    return options.like ? runLike(options) : runWith(options, nullptr);
}

} // namespace stills
