#include "batch/BatchWorkerConfig.h"

#include "batch/SamplingPlan.h"
#include "batch/SecondsText.h"
#include "profiles/OutputNaming.h"
#include "profiles/ProfileManager.h"

#include <QFileInfo>
#include <QMetaProperty>
#include <QSettings>
#include <QStringList>

#include <functional>

namespace {

QString getSettingsPath()
{
    return ProfileManager::getSettingsPath(QStringLiteral("batchModeDefaults.ini"));
}

/// Calls `use` with each property that is stored in the file of batch defaults, in their order.
/// QObject's objectName is one of them, because existing files hold it.
void forEachDefault(const QObject& config, const std::function<void(const char*)>& use)
{
    // Earlier versions had a snapshotInterval, which was not a default either.
    static const QStringList ignored{QStringLiteral("source"), QStringLiteral("fileOutputPath"),
                                     QStringLiteral("snapshotInterval")};
    const QMetaObject* const meta = config.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const bool persistent = property.isStored() && property.isWritable();
        if (persistent && !ignored.contains(QString::fromLatin1(property.name()))) {
            use(property.name());
        }
    }
}

} // namespace

BatchWorkerConfig::BatchWorkerConfig(QObject* parent)
    : QObject(parent)
    , m_ownImageProfile(std::make_unique<ImageProfile>(nullptr))
    , m_ownFilenameProfile(std::make_unique<FileNameProfile>(nullptr))
    , m_imageProfile(m_ownImageProfile.get())
    , m_filenameProfile(m_ownFilenameProfile.get())
{}

BatchWorkerConfig::~BatchWorkerConfig() = default;

void BatchWorkerConfig::setSource(const QString& path)
{
    m_source = QDir::toNativeSeparators(path);
    m_outputDir = QFileInfo(m_source).absoluteDir();
}

QString BatchWorkerConfig::sourceFileName() const
{
    return QFileInfo(m_source).completeBaseName();
}

QString BatchWorkerConfig::fileOutputPath() const
{
    return QDir::toNativeSeparators(m_outputDir.absolutePath());
}

void BatchWorkerConfig::setFileOutputPath(const QString& path)
{
    m_outputDir = path.isEmpty() ? QFileInfo(m_source).absoluteDir() : QDir(path);
}

void BatchWorkerConfig::setImageProfile(ImageProfile* profile)
{
    if (profile != nullptr) {
        m_imageProfile = profile;
    }
}

QString BatchWorkerConfig::imageProfileId() const
{
    return m_imageProfile->id();
}

void BatchWorkerConfig::setImageProfileId(const QString& id)
{
    setImageProfile(dynamic_cast<ImageProfile*>(ImageProfile::profileManager()->profileForId(id)));
}

void BatchWorkerConfig::setFileNameProfile(FileNameProfile* profile)
{
    if (profile != nullptr) {
        m_filenameProfile = profile;
    }
}

QString BatchWorkerConfig::filenameProfileId() const
{
    return m_filenameProfile->id();
}

void BatchWorkerConfig::setFileNameProfileId(const QString& id)
{
    setFileNameProfile(
        dynamic_cast<FileNameProfile*>(FileNameProfile::profileManager()->profileForId(id)));
}

QString BatchWorkerConfig::filenameForCounter(int counter) const
{
    return m_filenameProfile->generateFileName(sourceFileName(), counter);
}

QString BatchWorkerConfig::filenameExample() const
{
    return filenameForCounter(SamplingPlan::isSingleShot(*this) ? OutputNaming::noCounter : 1);
}

QString BatchWorkerConfig::intervalDisplay() const
{
    switch (intervalType()) {
    case EveryMilliseconds:
        return tr("Every %1 s").arg(secondsText(intervalMilliseconds()));
    case SpreadImages:
        return tr("%n images", nullptr, intervalImages());
    case SingleShot:
        break;
    default:
        return QStringLiteral("placeholder");
    }
    switch (intervalSingleShot()) {
    case Front:
        return tr("Single front");
    case Middle:
        return tr("Single middle");
    case Back:
        return tr("Single back");
    default:
        return tr("Single ");
    }
}

std::optional<int> BatchWorkerConfig::expectedImages() const
{
    if (!m_videoInfo.loaded) {
        return std::nullopt;
    }
    return SamplingPlan::imageCount(*this, m_videoInfo.duration);
}

void BatchWorkerConfig::loadVideoInfo()
{
    m_videoInfo.loadFromVideo(m_source);
}

void BatchWorkerConfig::saveAsDefault() const
{
    QSettings settings(getSettingsPath(), QSettings::IniFormat);
    forEachDefault(*this, [this, &settings](const char* name) {
        settings.setValue(QString::fromLatin1(name), property(name));
    });
}

void BatchWorkerConfig::loadFromLastUsed()
{
    setImageProfile(dynamic_cast<ImageProfile*>(ImageProfile::profileManager()->lastUsedProfile()));
    setFileNameProfile(
        dynamic_cast<FileNameProfile*>(FileNameProfile::profileManager()->lastUsedProfile()));
    const QSettings settings(getSettingsPath(), QSettings::IniFormat);
    forEachDefault(*this, [this, &settings](const char* name) {
        const QString key = QString::fromLatin1(name);
        if (settings.contains(key)) {
            setProperty(name, settings.value(key));
        }
    });
}
