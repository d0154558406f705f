#pragma once

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "video/VideoInfo.h"

#include <QDir>
#include <QObject>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

/// One batch job: a video, the folder for its images, which positions to take, and the profiles
/// that make and name the images.
///
/// The settings are properties, so that forms bind to them by name and the defaults are saved
/// and restored by a walk over them: adding a stored, writable property adds a key to the defaults
/// file, in the order of declaration.
///
/// Belongs to the user-interface thread. While a worker runs the job in another thread, nobody
/// else changes it; the worker itself may correct the interval, whose values may be read from any
/// thread for that reason.
class BatchWorkerConfig : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString source READ source WRITE setSource)
    Q_PROPERTY(QString imageProfileId READ imageProfileId WRITE setImageProfileId)
    Q_PROPERTY(QString filenameProfileId READ filenameProfileId WRITE setFileNameProfileId)
    Q_PROPERTY(QString filenameExample READ filenameExample)
    Q_PROPERTY(QString fileOutputPath READ fileOutputPath WRITE setFileOutputPath)
    Q_PROPERTY(qlonglong skipFront READ skipFront WRITE setSkipFront)
    Q_PROPERTY(qlonglong skipBack READ skipBack WRITE setSkipBack)
    Q_PROPERTY(int intervalType READ intervalType WRITE setIntervalType)
    Q_PROPERTY(int intervalMilliseconds READ intervalMilliseconds WRITE setIntervalMilliseconds)
    Q_PROPERTY(int intervalImages READ intervalImages WRITE setIntervalImages)
    Q_PROPERTY(int intervalSingleShot READ intervalSingleShot WRITE setIntervalSingleShot)
    Q_PROPERTY(bool exactFrames READ exactFrames WRITE setExactFrames)

public:
    /// The values of intervalType(). Any other number is kept, shown as a placeholder, and takes
    /// no image.
    enum IntervalType {
        EveryMilliseconds = 0, ///< one image every intervalMilliseconds()
        SpreadImages = 1,      ///< intervalImages() images, evenly spread
        SingleShot = 2,        ///< one image at intervalSingleShot()
    };

    /// The values of intervalSingleShot().
    enum SingleShotPlace { Front = 0, Middle = 1, Back = 2 };

    /// A job with the default settings and profiles of its own; no saved default is consulted.
    explicit BatchWorkerConfig(QObject* parent = nullptr);
    ~BatchWorkerConfig() override;

    /// The video's path with native separators. Setting it makes the folder that holds the video
    /// the output folder; the video itself is not looked at.
    QString source() const { return m_source; }
    void setSource(const QString& path);
    /// The source's file name without folder and without its last extension.
    QString sourceFileName() const;

    /// The folder for the images. It means something only after it or the source was set.
    QDir outputDir() const { return m_outputDir; }
    void setOutputDir(const QDir& dir) { m_outputDir = dir; }
    /// The same folder as an absolute path with native separators.
    QString fileOutputPath() const;
    void setFileOutputPath(const QString& path);

    /// The profile that makes the images, never null. A profile that is set belongs to someone
    /// else and must outlive the job; null changes nothing.
    ImageProfile* imageProfile() const { return m_imageProfile; }
    void setImageProfile(ImageProfile* profile);
    /// The same by id; an id that no profile has changes nothing.
    QString imageProfileId() const;
    void setImageProfileId(const QString& id);

    /// The profile that names the images, never null. A profile that is set belongs to someone
    /// else and must outlive the job; null changes nothing.
    FileNameProfile* filenameProfile() const { return m_filenameProfile; }
    void setFileNameProfile(FileNameProfile* profile);
    /// The same by id; an id that no profile has changes nothing.
    QString filenameProfileId() const;
    void setFileNameProfileId(const QString& id);

    /// The name without folder of the image with that number; -1 asks for a name without number.
    QString filenameForCounter(int counter) const;
    /// The first image's name; that of a single shot bears no number.
    QString filenameExample() const;

    /// Milliseconds at the front and at the back of the video that give no images.
    qlonglong skipFront() const { return m_skipFront; }
    void setSkipFront(long long milliseconds) { m_skipFront = milliseconds; }
    qlonglong skipBack() const { return m_skipBack; }
    void setSkipBack(long long milliseconds) { m_skipBack = milliseconds; }

    /// How the positions are chosen: an IntervalType, and the number that belongs to each. Nothing
    /// is checked here.
    int intervalType() const { return m_intervalType; }
    void setIntervalType(int type) { m_intervalType = type; }
    int intervalMilliseconds() const { return m_intervalMilliseconds; }
    void setIntervalMilliseconds(int milliseconds) { m_intervalMilliseconds = milliseconds; }
    int intervalImages() const { return m_intervalImages; }
    void setIntervalImages(int images) { m_intervalImages = images; }
    int intervalSingleShot() const { return m_intervalSingleShot; }
    void setIntervalSingleShot(int place) { m_intervalSingleShot = place; }
    /// Take exactly the frames at the positions, on all cores, instead of key frames near them, one
    /// after another. Off in a new job.
    bool exactFrames() const { return m_exactFrames; }
    void setExactFrames(bool exact) { m_exactFrames = exact; }
    /// The interval in a few words, for lists.
    QString intervalDisplay() const;

    /// How many images the job will make, as far as can be told beforehand: frames that are shown
    /// longer than the interval give fewer. Nothing while nothing is known about the source.
    std::optional<int> expectedImages() const;

    /// What is known about the source; nothing before loadVideoInfo() or setVideoFacts().
    const VideoInfo& videoInfo() const { return m_videoInfo; }
    /// Reads the source, and returns when that is done: see VideoInfoLoader for a way that does not
    /// block the user interface.
    void loadVideoInfo();
    /// Takes over what was read in another thread.
    void setVideoFacts(const VideoFacts& facts) { m_videoInfo.setFacts(facts); }

    /// Writes the settings to the file of batch defaults; the source and the output folder are
    /// no defaults.
    void saveAsDefault() const;
    /// Takes the profiles used last and then the settings from the file of batch defaults. What
    /// the file does not hold keeps its value.
    void loadFromLastUsed();

private:
    QString m_source;
    QDir m_outputDir;
    qint64 m_skipFront = 2000;
    qint64 m_skipBack = 2000;
    // The worker corrects these in its thread while lists show them.
    std::atomic<int> m_intervalType{EveryMilliseconds};
    std::atomic<int> m_intervalMilliseconds{5000};
    std::atomic<int> m_intervalImages{10};
    int m_intervalSingleShot = Middle;
    bool m_exactFrames = false;
    VideoInfo m_videoInfo;
    // The profiles that a job starts with are its own; those that it is given are not.
    const std::unique_ptr<ImageProfile> m_ownImageProfile;
    const std::unique_ptr<FileNameProfile> m_ownFilenameProfile;
    ImageProfile* m_imageProfile;
    FileNameProfile* m_filenameProfile;
};
