#include "batch/Worker.h"

#include <QDebug>

Worker::Worker(QObject* parent)
    : QObject(parent)
{
    setAutoDelete(false);
}

void Worker::requestInterruption()
{
    qDebug("Worker::requestInterruption()");
    int running = 0;
    m_interruption.compare_exchange_strong(running, 1);
}
