#include "ui/mainwindow/BestFramesFinder.h"

BestFramesFinder::BestFramesFinder(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<BestFrames>("BestFrames");
}

BestFramesFinder::~BestFramesFinder() = default;

void BestFramesFinder::search(const QString& video, QtAV::Deinterlacing deinterlacing,
                              const VideoStretch& stretch, int count, const QSize& pictureSize)
{
    const int search = ++m_search;
    m_task.start([=](const NewestTask::IsCancelled& isCancelled) {
        const BestFrames best =
            series::findBest(video, deinterlacing, stretch, count, pictureSize, isCancelled);
        QMetaObject::invokeMethod(this, "take", Qt::QueuedConnection, Q_ARG(int, search),
                                  Q_ARG(BestFrames, best));
    });
}

void BestFramesFinder::cancel()
{
    ++m_search;
    m_task.cancel();
}

void BestFramesFinder::take(int search, const BestFrames& best)
{
    // The search may have been cancelled while its result was in transit.
    if (search == m_search) {
        Q_EMIT found(best);
    }
}
