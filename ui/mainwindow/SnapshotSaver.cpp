#include "ui/mainwindow/SnapshotSaver.h"

#include "batch/FreePaths.h"
#include "imaging/CapturedPicture.h"
#include "imaging/Rendering.h"
#include "ui/filmstrip/SnapshotShelf.h"

#include <QDir>
#include <QHash>

#include <utility>

namespace {

/// The path of the new file, or why there is none.
struct Saved
{
    QString path;
    QString failure;
};

[[nodiscard]] Saved saved(const CapturedPicture& picture, const ImageRecipe& wanted,
                          const QString& type, FreePaths& paths)
{
    const ImageRecipe recipe = forType(wanted, type);
    const QImage image = imaging::render(imaging::pictureOf(picture, recipe), recipe).image;
    auto result = WriteResult::AlreadyExists;
    QString path;
    WriteFailure failure;
    while (result == WriteResult::AlreadyExists) {
        path = paths.next();
        result =
            imaging::save(path, image, recipe, type, picture.source, ExistingFile::Keep, &failure);
    }
    return result == WriteResult::Written ? Saved{path, {}} : Saved{{}, failure.text()};
}

} // namespace

SnapshotSaver::SnapshotSaver(SnapshotShelf& shelf, QObject* parent)
    : QObject(parent)
    , m_shelf(shelf)
{}

void SnapshotSaver::start(const QVector<Job>& jobs, const QString& folder,
                          const OutputNaming& naming)
{
    if (!isRunning()) {
        m_saved = 0;
        m_failed = 0;
        m_lastFile.clear();
        m_failure.clear();
    }
    m_left += jobs.size();
    // One counter for each video, used by the tasks alone.
    QHash<QString, std::shared_ptr<FreePaths>> counters;
    for (const Job& job : jobs) {
        std::shared_ptr<FreePaths>& paths = counters[job.videoBaseName];
        if (paths == nullptr) {
            const auto pathOf = [folder = QDir(folder), naming,
                                 video = job.videoBaseName](int counter) {
                return folder.filePath(naming.fileName(video, counter));
            };
            paths = std::make_shared<FreePaths>(pathOf);
        }
        save(job, naming.type, paths);
    }
}

void SnapshotSaver::save(const Job& job, const QString& type,
                         const std::shared_ptr<FreePaths>& paths)
{
    const auto outcome = std::make_shared<Saved>();
    const auto work = [job, type, paths, outcome](const CapturedPicture* picture) {
        if (picture != nullptr) {
            *outcome = saved(*picture, job.recipe, type, *paths);
        }
        return !outcome->path.isEmpty();
    };
    m_shelf.process(job.id, work, [this, id = job.id, outcome](bool) {
        notice(id, outcome->path, outcome->failure);
    });
}

void SnapshotSaver::notice(const QString& id, const QString& path, const QString& failure)
{
    --m_left;
    if (path.isEmpty()) {
        ++m_failed;
        m_failure = failure;
    } else {
        ++m_saved;
        m_lastFile = path;
        m_shelf.markSaved(id);
    }
    const int done = m_saved + m_failed;
    Q_EMIT progressed(done, done + m_left);
    if (!isRunning()) {
        Q_EMIT finished(m_saved, m_failed, m_lastFile);
    }
}
