#include "tests/batch/WorkerEvents.h"

WorkerEvents::WorkerEvents(BatchWorker& worker)
{
    connect(&worker, &BatchWorker::progressUpdate, this, [this](BatchWorker*, float progress) {
        add(QStringLiteral("progress %1").arg(static_cast<double>(progress), 0, 'f', 4));
    });
    connect(&worker, &BatchWorker::statusUpdate, this,
            [this](BatchWorker*, const QString& message, BatchWorker::BatchStatusMessageType type) {
                const bool isError = type == BatchWorker::Error;
                add((isError ? QStringLiteral("error ") : QStringLiteral("status ")) + message);
            });
    connect(&worker, &BatchWorker::imageReady, this, [this](BatchWorker*, const QImage& image) {
        add(QStringLiteral("image %1x%2").arg(image.width()).arg(image.height()));
    });
}

QStringList WorkerEvents::of(const QString& kind) const
{
    QStringList events;
    for (const QString& event : all) {
        if (event.startsWith(kind + QLatin1Char(' '))) {
            events.append(event.mid(kind.size() + 1));
        }
    }
    return events;
}

void WorkerEvents::add(const QString& event)
{
    all.append(event);
    Q_EMIT added(event);
}
