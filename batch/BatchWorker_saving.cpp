// Saving the images of a job, and handling those for which there is no room.

#include "batch/BatchWorker.h"

#include "batch/BatchWorkerConfig.h"
#include "batch/FreePaths.h"
#include "batch/SecondsText.h"
#include "imaging/FilePublisher.h"
#include "imaging/FramePicture.h"
#include "imaging/Rendering.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QPointer>
#include <QThread>

#include <memory>

void BatchWorker::frameExtracted(const QtAV::VideoFrame& frame, qint64 position)
{
    // The dialog that asks lets other events be processed.
    if (m_isAsking) {
        m_postponed.emplace_back(frame, position);
        return;
    }
    const QPointer<BatchWorker> self(this);
    saveFrame(frame, position);
    if (self) {
        --m_waitingFrames;
        takePostponed();
    }
}

void BatchWorker::takePostponed()
{
    if (m_postponed.empty()) {
        return;
    }
    const auto [frame, position] = m_postponed.front();
    m_postponed.pop_front();
    frameExtracted(frame, position);
}

void BatchWorker::saveFrame(const QtAV::VideoFrame& frame, qint64 position)
{
    if (isInterruptionRequested()) {
        noteMissed(position);
        return;
    }
    if (!frame.isValid()) {
        noteMissed(position);
        extractorError(tr("no picture found at %1 s").arg(secondsText(position)));
        return;
    }
    announceBaseLayer(frame.baseLayer());
    const QString path = m_paths->first(m_config->intervalType() == BatchWorkerConfig::SingleShot);
    announceSaving(path);
    const ImageRecipe recipe = forType(recipes::of(*m_config->imageProfile()),
                                       m_config->filenameProfile()->fileOutputType());
    imaging::Rendering made = imaging::render(imaging::pictureOf(frame, recipe), recipe);
    const PictureSource source =
        m_source ? m_source->at(frame.timestamp(), frame.displaySize()) : PictureSource();
    const QPointer<BatchWorker> self(this);
    if (made.image.isNull()) {
        noteMissed(position);
        reportUnmadeImage(path, position, made.error);
    } else if (saveImage(path, made.image, recipe, source)) {
        Q_EMIT imageReady(this, made.image);
    } else if (self) {
        noteMissed(position);
    }
}

/// Also writes a debug message, for jobs that run without a connected receiver.
void BatchWorker::reportUnmadeImage(const QString& path, qint64 position, const QString& reason)
{
    const QString message =
        tr("Could not make %1 from %2 s: %3").arg(path, secondsText(position), reason);
    qWarning().noquote() << m_config->source() + QStringLiteral(": ") + message;
    Q_EMIT statusUpdate(this, message, Error);
}

/// Also writes a debug message.
void BatchWorker::reportUnsavedImage(const WriteFailure& failure)
{
    const QString message = tr("Could not save %1").arg(failure.path);
    qWarning().noquote() << m_config->source() + QStringLiteral(": ") + message
                         << QStringLiteral("(%1)").arg(failure.text());
    Q_EMIT statusUpdate(this, message, Error);
}

/// Call it in the worker's own thread. The dialog may let any events be processed.
bool BatchWorker::askForRoom(const WriteFailure& failure)
{
    if (!m_roomQuestion || isInterruptionRequested()) {
        return false;
    }
    const QPointer<BatchWorker> self(this);
    const RoomQuestion question = m_roomQuestion;
    m_isAsking = true;
    const bool triesAgain = question(failure);
    if (!self) {
        return false;
    }
    m_isAsking = false;
    return triesAgain;
}

/// Does the same from the thread of a series, which waits for the answer.
bool BatchWorker::waitForRoom(const WriteFailure& failure)
{
    enum Answer { None, Retry, Stop };
    const auto answer = std::make_shared<std::atomic<Answer>>(None);
    tell([this, failure, answer] { *answer = askForRoom(failure) ? Retry : Stop; });
    while (*answer == None && !isInterruptionRequested()) {
        QThread::msleep(lookMilliseconds);
    }
    return *answer == Retry;
}

/// While the question is shown, the worker must not be deleted, which happens soon after run().
void BatchWorker::waitForAnswer() const
{
    if (QThread::currentThread() == thread() || !m_roomQuestion) {
        return;
    }
    QElapsedTimer waited;
    waited.start();
    const auto isSaving = [&] {
        return m_waitingFrames > 0 && !isInterruptionRequested() &&
               !waited.hasExpired(longestWaitMilliseconds);
    };
    while (m_isAsking || isSaving()) {
        QThread::msleep(lookMilliseconds);
        if (m_isAsking) {
            waited.restart();
        }
    }
}

void BatchWorker::announceSaving(const QString& path)
{
    Q_EMIT statusUpdate(this, tr("Saving: %1").arg(path), Normal);
    qDebug().noquote() << QStringLiteral("Saving image ") + path;
}

/// Saves under the given name or, if others take that name at the same moment, under the next free
/// one. Returns false if that failed, which has been reported then.
bool BatchWorker::saveImage(QString path, const QImage& image, const ImageRecipe& recipe,
                            const PictureSource& source)
{
    const QString type = m_config->filenameProfile()->fileOutputType();
    const QPointer<BatchWorker> self(this);
    for (;;) {
        WriteFailure failure;
        switch (imaging::save(path, image, recipe, type, source, ExistingFile::Keep, &failure)) {
        case WriteResult::Written:
            ++m_savedImages;
            return true;
        case WriteResult::AlreadyExists:
            path = m_paths->next();
            announceSaving(path);
            break;
        case WriteResult::Failed:
            if (failure.isLackOfRoom() && askForRoom(failure)) {
                break;
            }
            if (self) {
                reportUnsavedImage(failure);
            }
            return false;
        }
    }
}
