#pragma once

#include "profiles/BaseProfile.h"

#include <QString>

class ProfileManager;

/// How the name of a saved image is formed from the video's name and a running counter.
///
/// Every output file of the program is named by generateFileName(). Nothing is validated: what the
/// user typed, a path separator too, passes through as it is.
class FileNameProfile : public BaseProfile
{
    Q_OBJECT
    /// Put in front of the base name.
    Q_PROPERTY(QString fileOutputPrefix READ fileOutputPrefix WRITE setFileOutputPrefix)
    /// Fixed base name; empty for the video's own.
    Q_PROPERTY(QString fileBaseName READ fileBaseName WRITE setFileBaseName)
    /// Put after the base name, also where no counter follows.
    Q_PROPERTY(QString fileOutputSuffix READ fileOutputSuffix WRITE setFileOutputSuffix)
    /// File type and extension, without a leading dot; the image writer goes by it.
    Q_PROPERTY(QString fileOutputType READ fileOutputType WRITE setFileOutputType)
    /// Write the counter with leading zeros to at least five digits.
    Q_PROPERTY(bool fileOutputCounterPadZeros READ fileOutputCounterPadZeros WRITE
                   setFileOutputCounterPadZeros)

public:
    /// A profile without a name, with a fresh id and default values; the argument is ignored.
    explicit FileNameProfile(FileNameProfile* ignored = nullptr);
    ~FileNameProfile() override;

    QString fileOutputPrefix() const { return m_fileOutputPrefix; }
    void setFileOutputPrefix(const QString& prefix) { m_fileOutputPrefix = prefix; }

    QString fileBaseName() const { return m_fileBaseName; }
    void setFileBaseName(const QString& baseName) { m_fileBaseName = baseName; }

    QString fileOutputSuffix() const { return m_fileOutputSuffix; }
    void setFileOutputSuffix(const QString& suffix) { m_fileOutputSuffix = suffix; }

    QString fileOutputType() const { return m_fileOutputType; }
    void setFileOutputType(const QString& type) { m_fileOutputType = type; }

    bool fileOutputCounterPadZeros() const { return m_fileOutputCounterPadZeros; }
    void setFileOutputCounterPadZeros(bool pad) { m_fileOutputCounterPadZeros = pad; }

    /// The file name, without a folder: prefix, base name, suffix, counter, dot, type. A counter of
    /// exactly -1 leaves the counter out; it is never cut.
    QString generateFileName(const QString& videoBaseName, int counter) const;

    /// The file name without a counter, as for a single picture of a video.
    QString generateFileName(const QString& videoBaseName) const;

    /// The name that the first picture of a video "MyVideo" gets, for showing to the user.
    QString fileOutputExamples() const;

    /// The one manager of file-name profiles, made on first call over "FileNameProfiles.ini"; it
    /// always has at least one profile.
    static ProfileManager* profileManager();

private:
    QString counterText(int counter) const;

    QString m_fileOutputPrefix;
    QString m_fileBaseName;
    QString m_fileOutputSuffix = QStringLiteral("-");
    QString m_fileOutputType = QStringLiteral("jpeg");
    bool m_fileOutputCounterPadZeros = true;

    static inline ProfileManager* s_profileManager = nullptr;
};
