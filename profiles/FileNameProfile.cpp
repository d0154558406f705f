#include "profiles/FileNameProfile.h"

#include "profiles/ProfileManager.h"

namespace {

constexpr int noCounter = -1;
constexpr int paddedCounterWidth = 5;

} // namespace

FileNameProfile::FileNameProfile(FileNameProfile* ignored)
    : BaseProfile(ignored)
{}

FileNameProfile::~FileNameProfile() = default;

QString FileNameProfile::generateFileName(const QString& videoBaseName, int counter) const
{
    const QString baseName = m_fileBaseName.isEmpty() ? videoBaseName : m_fileBaseName;
    return m_fileOutputPrefix + baseName + m_fileOutputSuffix + counterText(counter) +
           QLatin1Char('.') + m_fileOutputType;
}

QString FileNameProfile::generateFileName(const QString& videoBaseName) const
{
    return generateFileName(videoBaseName, noCounter);
}

QString FileNameProfile::fileOutputExamples() const
{
    return generateFileName(QStringLiteral("MyVideo"), 1);
}

ProfileManager* FileNameProfile::profileManager()
{
    if (!s_profileManager) {
        constexpr bool createDefaultIfEmpty = true;
        s_profileManager = new ProfileManager(
            QStringLiteral("FileNameProfiles.ini"), [] { return new FileNameProfile(nullptr); },
            createDefaultIfEmpty);
    }
    return s_profileManager;
}

QString FileNameProfile::counterText(int counter) const
{
    if (counter == noCounter)
        return QString();
    if (!m_fileOutputCounterPadZeros)
        return QString::number(counter);
    return QStringLiteral("%1").arg(qlonglong(counter), paddedCounterWidth, 10, QLatin1Char('0'));
}
