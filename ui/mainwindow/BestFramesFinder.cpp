#include "ui/mainwindow/BestFramesFinder.h"

BestFramesFinder::BestFramesFinder(QObject* parent)
    : QObject(parent)
{}

BestFramesFinder::~BestFramesFinder()
{
    cancel();
}

void BestFramesFinder::search(const QString& video, QtAV::Deinterlacing deinterlacing,
                              const VideoStretch& stretch, int count, const QSize& pictureSize)
{
    cancel();
    m_isCancelled = std::make_shared<std::atomic<bool>>(false);
    const auto flag = m_isCancelled;
    m_thread = std::thread([=] {
        const auto isCancelled = [flag] { return flag->load(); };
        const BestFrames best =
            series::findBest(video, deinterlacing, stretch, count, pictureSize, isCancelled);
        const auto tell = [this, flag, best] {
            if (!*flag) {
                Q_EMIT found(best);
            }
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

void BestFramesFinder::cancel()
{
    if (m_isCancelled != nullptr) {
        *m_isCancelled = true;
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}
