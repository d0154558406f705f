#pragma once

#include "series/BestFrames.h"
#include "ui/widgets/NewestTask.h"

#include <QMetaType>
#include <QObject>
#include <QString>

Q_DECLARE_METATYPE(BestFrames)

/// Looks for the best frames of a stretch in a thread of its own. One search at a time: a new one
/// ends the one before. User-interface thread only, and nothing waits there; only the end of the
/// object waits for the search's next step.
class BestFramesFinder : public QObject
{
    Q_OBJECT

public:
    explicit BestFramesFinder(QObject* parent = nullptr);
    ~BestFramesFinder() override;

    /// Begins a search, which ends in one found(), unless it is cancelled.
    void search(const QString& video, QtAV::Deinterlacing deinterlacing,
                const VideoStretch& stretch, int count, const QSize& pictureSize);
    /// Returns at once; what the search still finds is dropped.
    void cancel();

Q_SIGNALS:
    void found(const BestFrames& best);

private:
    Q_INVOKABLE void take(int search, const BestFrames& best);

    int m_search = 0;  ///< changes with each search and each cancel()
    NewestTask m_task; ///< last: its thread calls for the others
};
