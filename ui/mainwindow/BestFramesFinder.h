#pragma once

#include "series/BestFrames.h"
#include "ui/widgets/NewestTask.h"
#include "utils/CallQueue.h"

#include <QMetaType>
#include <QObject>
#include <QString>

Q_DECLARE_METATYPE(BestFrames)

/// Searches a stretch for its best frames on a thread of its own. A new search cancels the previous
/// one. User-interface thread only; calls do not wait, except that the destructor waits for the
/// search's next step.
class BestFramesFinder : public QObject
{
    Q_OBJECT

public:
    explicit BestFramesFinder(QObject* parent = nullptr);
    ~BestFramesFinder() override;

    /// Starts a search, which ends in one found() unless it is cancelled.
    void search(const QString& video, QtAV::Deinterlacing deinterlacing,
                const VideoStretch& stretch, int count, const QSize& pictureSize);
    /// Returns at once; what the search still finds is dropped.
    void cancel();

Q_SIGNALS:
    void found(const BestFrames& best);

private:
    void take(int search, const BestFrames& best);

    int m_search = 0; ///< changes with each search and each cancel()
    CallQueue m_results{this};
    NewestTask m_task; ///< last, since its thread calls the other members
};
