#include "batch/BatchListFile.h"

#include "batch/BatchWorkerConfig.h"
#include "profiles/ProfileManager.h"

#include <QMetaProperty>
#include <QSettings>

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
    const int count = settings.beginReadArray(jobsArray);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
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
