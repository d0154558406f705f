#include "tests/ui/batch/RunningBatch.h"

#include "batch/BatchThread.h"

#include <QDir>
#include <QLabel>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace testsupport {

namespace {

constexpr int limitMs = 300000;

} // namespace

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

BatchWorkerConfig& RunningBatch::addJob(const QString& video, const QString& folder)
{
    m_configs.push_back(std::make_unique<BatchWorkerConfig>());
    BatchWorkerConfig& config = *m_configs.back();
    config.setSource(video);
    config.setFileOutputPath(folder);
    config.setIntervalType(BatchWorkerConfig::SingleShot);
    config.setSkipFront(0);
    config.setSkipBack(0);
    config.imageProfile()->setImageWidth(160);
    config.imageProfile()->setImageHeight(120);
    m_dialog.addWorkerWithConfig(&config);
    return config;
}

void RunningBatch::exec(const std::function<void()>& during)
{
    QTimer::singleShot(0, &m_dialog, [this, &during] {
        during();
        if (!isDone()) {
            m_dialog.abort();
        }
        if (!waitForEnd()) {
            qFatal("the batch does not end");
        }
        m_dialog.close();
    });
    m_dialog.exec();
}

bool RunningBatch::execToItsEnd()
{
    bool hasEnded = false;
    exec([this, &hasEnded] { hasEnded = waitForEnd(); });
    return hasEnded;
}

bool RunningBatch::waitForEnd()
{
    return QTest::qWaitFor([this] { return isDone(); }, limitMs);
}

bool RunningBatch::isDone() const
{
    return button().text() == QLatin1String("Done");
}

BatchThread& RunningBatch::thread() const
{
    return *m_dialog.findChild<BatchThread*>();
}

QPushButton& RunningBatch::button() const
{
    return find<QPushButton>("doneButton");
}

QString RunningBatch::log() const
{
    return find<QTextEdit>("logTextEdit").toPlainText();
}

QStringList RunningBatch::logLines() const
{
    return log().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QString RunningBatch::labelText(const char* name) const
{
    return find<QLabel>(name).text();
}

int RunningBatch::percent(const char* name) const
{
    return find<QProgressBar>(name).value();
}

} // namespace testsupport
