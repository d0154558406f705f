#include "profiles/FileNameProfile.h"

#include "profiles/ProfileManager.h"

FileNameProfile::FileNameProfile(FileNameProfile* ignored)
    : BaseProfile(ignored)
{}

FileNameProfile::~FileNameProfile() = default;

QString FileNameProfile::generateFileName(const QString& videoBaseName, int counter) const
{
    return m_naming.fileName(videoBaseName, counter);
}

QString FileNameProfile::generateFileName(const QString& videoBaseName) const
{
    return generateFileName(videoBaseName, OutputNaming::noCounter);
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
