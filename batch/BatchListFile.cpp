#include "batch/BatchListFile.h"

#include "batch/BatchWorkerConfig.h"
#include "profiles/ProfileManager.h"

#include <QMetaProperty>
#include <QSettings>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <functional>

namespace {

const QLatin1String jobsArray("jobs");

QString path()
{
    return ProfileManager::getSettingsPath(QStringLiteral("batchList.ini"));
}

/// In the order of declaration: setting the video's path also sets the folder, which comes later.
void forEachSetting(const std::function<void(const char* name)>& use)
{
    const QMetaObject& meta = BatchWorkerConfig::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        if (meta.property(i).isWritable()) {
            use(meta.property(i).name());
        }
    }
}

/// The indices of the jobs that the file holds, in order. Its stated size may be any number.
QVector<int> storedIndices(QSettings& settings)
{
    const int size = settings.beginReadArray(jobsArray);
    QVector<int> indices;
    const QStringList groups = settings.childGroups();
    for (const QString& group : groups) {
        const int number = group.toInt();
        if (number >= 1 && number <= size && QString::number(number) == group) {
            indices.append(number - 1);
        }
    }
    settings.endArray();
    std::sort(indices.begin(), indices.end());
    return indices;
}

} // namespace

void BatchListFile::save(const QList<BatchWorkerConfig*>& jobs)
{
    QSettings settings(path(), QSettings::IniFormat);
    settings.remove(jobsArray);
    settings.beginWriteArray(jobsArray, jobs.size());
    for (int i = 0; i < jobs.size(); ++i) {
        settings.setArrayIndex(i);
        forEachSetting([&](const char* name) {
            settings.setValue(QString::fromLatin1(name), jobs.at(i)->property(name));
        });
    }
    settings.endArray();
}

QList<BatchWorkerConfig*> BatchListFile::load(QObject* parent)
{
    QSettings settings(path(), QSettings::IniFormat);
    QList<BatchWorkerConfig*> jobs;
    const QVector<int> indices = storedIndices(settings);
    settings.beginReadArray(jobsArray);
    for (const int index : indices) {
        settings.setArrayIndex(index);
        auto* const job = new BatchWorkerConfig(parent);
        job->loadFromLastUsed();
        forEachSetting([&](const char* name) {
            const QString key = QString::fromLatin1(name);
            if (settings.contains(key)) {
                job->setProperty(name, settings.value(key));
            }
        });
        jobs.append(job);
    }
    settings.endArray();
    return jobs;
}
