#pragma once

#include "batch/BatchThread.h"

#include <QObject>
#include <QStringList>

/// Records the signals of a batch's thread as text, in the order of their arrival in the thread
/// that made this object.
///
/// Unlike QSignalSpy, which records in the emitting thread, without a lock.
class ThreadEvents : public QObject
{
    Q_OBJECT

public:
    explicit ThreadEvents(BatchThread& thread);

    /// Processes events until the batch has ended; false if that takes too long.
    [[nodiscard]] bool waitForEnd() const;

    /// "0.5000 1.0000" for progress of the batch and of its job, "done" for the end.
    QStringList all;
    /// Whether all of it arrived in this object's thread.
    bool isHere = true;
};
