#include "ui/mainwindow/BestFramesFinder.h"

#include <utility>

BestFramesFinder::BestFramesFinder(QObject* parent)
    : QObject(parent)
{}

BestFramesFinder::~BestFramesFinder() = default;

void BestFramesFinder::search(const QString& video, QtAV::Deinterlacing deinterlacing,
                              const VideoStretch& stretch, int count, const QSize& pictureSize)
{
    const int search = ++m_search;
    m_task.start([=](const NewestTask::IsCancelled& isCancelled) {
        BestFrames best =
            series::findBest(video, deinterlacing, stretch, count, pictureSize, isCancelled);
        m_results.post([this, search, best = std::move(best)] { take(search, best); });
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
