#pragma once

#include "series/BestFrames.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>
#include <thread>

/// Looks for the best frames of a stretch in a thread of its own. One search at a time: a new one
/// ends the one before. User-interface thread only; the end of the object waits for the search's
/// next step.
class BestFramesFinder : public QObject
{
    Q_OBJECT

public:
    explicit BestFramesFinder(QObject* parent = nullptr);
    ~BestFramesFinder() override;

    /// Begins a search, which ends in one found(), unless it is cancelled.
    void search(const QString& video, QtAV::Deinterlacing deinterlacing,
                const VideoStretch& stretch, int count, const QSize& pictureSize);
    void cancel();

Q_SIGNALS:
    void found(const BestFrames& best);

private:
    std::shared_ptr<std::atomic<bool>> m_isCancelled; ///< of the search that runs
    std::thread m_thread;
};
