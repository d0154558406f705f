#pragma once

#include "batch/BatchWorker.h"

#include <QStringList>

/// Records all signals of a worker as text, in the order and thread of their arrival.
class WorkerEvents : public QObject
{
    Q_OBJECT

public:
    explicit WorkerEvents(BatchWorker& worker);

    /// "progress 0.0100", "status …", "error …", "image 640x480".
    QStringList all;
    /// The events of one kind, without the kind.
    QStringList of(const QString& kind) const;

Q_SIGNALS:
    /// After each event.
    void added(const QString& event);

private:
    void add(const QString& event);
};
