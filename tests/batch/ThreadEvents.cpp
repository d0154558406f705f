#include "tests/batch/ThreadEvents.h"

#include "tests/support/Patience.h"

#include <QTest>
#include <QThread>

using testsupport::patienceMs;

namespace {

const QLatin1String done("done");

} // namespace

ThreadEvents::ThreadEvents(BatchThread& thread)
{
    connect(&thread, &BatchThread::progressUpdate, this, [this](float overall, float current) {
        all.append(QStringLiteral("%1 %2")
                       .arg(static_cast<double>(overall), 0, 'f', 4)
                       .arg(static_cast<double>(current), 0, 'f', 4));
        isHere = isHere && QThread::currentThread() == this->thread();
    });
    connect(&thread, &BatchThread::threadDone, this, [this] { all += done; });
}

bool ThreadEvents::waitForEnd() const
{
    return QTest::qWaitFor([this] { return all.contains(done); }, patienceMs);
}
