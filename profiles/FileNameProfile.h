#pragma once

#include "profiles/BaseProfile.h"
#include "profiles/OutputNaming.h"

#include <QString>

class ProfileManager;

/// How the name of a saved image is formed from the video's name and a running counter.
///
/// generateFileName() names every output file of the program. Nothing is validated: the user's
/// text, even a path separator, is used as it is.
class FileNameProfile : public BaseProfile
{
    Q_OBJECT
    /// Put in front of the base name.
    Q_PROPERTY(QString fileOutputPrefix READ fileOutputPrefix WRITE setFileOutputPrefix)
    /// Fixed base name; empty for the video's own.
    Q_PROPERTY(QString fileBaseName READ fileBaseName WRITE setFileBaseName)
    /// Put after the base name, also where no counter follows.
    Q_PROPERTY(QString fileOutputSuffix READ fileOutputSuffix WRITE setFileOutputSuffix)
    /// File type and extension, without a leading dot; it selects the image format.
    Q_PROPERTY(QString fileOutputType READ fileOutputType WRITE setFileOutputType)
    /// Write the counter with leading zeros to at least five digits.
    Q_PROPERTY(bool fileOutputCounterPadZeros READ fileOutputCounterPadZeros WRITE
                   setFileOutputCounterPadZeros)

public:
    /// A profile without a name, with a fresh id and default values; the argument is ignored.
    explicit FileNameProfile(FileNameProfile* ignored = nullptr);
    ~FileNameProfile() override;

    QString fileOutputPrefix() const { return m_naming.prefix; }
    void setFileOutputPrefix(const QString& prefix) { m_naming.prefix = prefix; }

    QString fileBaseName() const { return m_naming.baseName; }
    void setFileBaseName(const QString& baseName) { m_naming.baseName = baseName; }

    QString fileOutputSuffix() const { return m_naming.suffix; }
    void setFileOutputSuffix(const QString& suffix) { m_naming.suffix = suffix; }

    QString fileOutputType() const { return m_naming.type; }
    void setFileOutputType(const QString& type) { m_naming.type = type; }

    bool fileOutputCounterPadZeros() const { return m_naming.padsZeros; }
    void setFileOutputCounterPadZeros(bool pad) { m_naming.padsZeros = pad; }

    /// The settings as a value, for any thread.
    const OutputNaming& naming() const { return m_naming; }

    /// The file name without a folder: prefix, base name, suffix, counter, dot, type. A counter of
    /// exactly -1 is omitted; other counters are never truncated.
    QString generateFileName(const QString& videoBaseName, int counter) const;

    /// The file name without a counter, as for a single picture of a video.
    QString generateFileName(const QString& videoBaseName) const;

    /// An example for the user: the name of the first picture of a video "MyVideo".
    QString fileOutputExamples() const;

    /// The one manager of file-name profiles, made on first call over "FileNameProfiles.ini"; it
    /// always has at least one profile.
    static ProfileManager* profileManager();

private:
    OutputNaming m_naming;

    static inline ProfileManager* s_profileManager = nullptr;
};
