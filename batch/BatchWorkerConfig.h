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
/// Belongs to the user-interface thread. While a worker runs the job in another thread, nothing
/// else may change it. The worker itself may correct the interval, so its values may be read from
/// any thread.
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
    /// The values of intervalType(). Any other number is kept, shown as a placeholder, and takes no
    /// image.
    enum IntervalType {
        EveryMilliseconds = 0, ///< one image every intervalMilliseconds()
        SpreadImages = 1,      ///< intervalImages() images, evenly spread
        SingleShot = 2,        ///< one image at intervalSingleShot()
    };

    /// The values of intervalSingleShot().
    enum SingleShotPlace { Front = 0, Middle = 1, Back = 2 };

    /// A job with built-in default settings and its own profiles; saved defaults are not loaded.
    explicit BatchWorkerConfig(QObject* parent = nullptr);
    ~BatchWorkerConfig() override;

    /// The video's path with native separators. Setting it also sets the output folder to the
    /// video's folder; the video itself is not accessed.
    QString source() const { return m_source; }
    void setSource(const QString& path);
    /// The source's file name without folder and without its last extension.
    QString sourceFileName() const;

    /// The folder for the images. Meaningful only after it or the source was set.
    QDir outputDir() const { return m_outputDir; }
    void setOutputDir(const QDir& dir) { m_outputDir = dir; }
    /// The output folder as an absolute path with native separators. Setting an empty path restores
    /// the source's folder.
    QString fileOutputPath() const;
    void setFileOutputPath(const QString& path);

    /// The profile that makes the images, never null. A profile that is set is not owned and must
    /// outlive the job; setting null has no effect.
    ImageProfile* imageProfile() const { return m_imageProfile; }
    void setImageProfile(ImageProfile* profile);
    /// The id of that profile; setting an unknown id has no effect.
    QString imageProfileId() const;
    void setImageProfileId(const QString& id);

    /// The profile that names the images, never null. A profile that is set is not owned and must
    /// outlive the job; setting null has no effect.
    FileNameProfile* filenameProfile() const { return m_filenameProfile; }
    void setFileNameProfile(FileNameProfile* profile);
    /// The id of that profile; setting an unknown id has no effect.
    QString filenameProfileId() const;
    void setFileNameProfileId(const QString& id);

    /// The name, without folder, of the image with that number; -1 gives a name without number.
    QString filenameForCounter(int counter) const;
    /// The name of the first image; that of a single shot has no number.
    QString filenameExample() const;

    /// Lengths in milliseconds of the stretches at the front and at the back without images.
    qlonglong skipFront() const { return m_skipFront; }
    void setSkipFront(long long milliseconds) { m_skipFront = milliseconds; }
    qlonglong skipBack() const { return m_skipBack; }
    void setSkipBack(long long milliseconds) { m_skipBack = milliseconds; }

    /// How positions are chosen: an IntervalType, and the number that belongs to each. Values are
    /// not checked here.
    int intervalType() const { return m_intervalType; }
    void setIntervalType(int type) { m_intervalType = type; }
    int intervalMilliseconds() const { return m_intervalMilliseconds; }
    void setIntervalMilliseconds(int milliseconds) { m_intervalMilliseconds = milliseconds; }
    int intervalImages() const { return m_intervalImages; }
    void setIntervalImages(int images) { m_intervalImages = images; }
    int intervalSingleShot() const { return m_intervalSingleShot; }
    void setIntervalSingleShot(int place) { m_intervalSingleShot = place; }
    /// Takes exactly the frames at the positions, on all cores, instead of nearby key frames one
    /// after another. Off in a new job.
    bool exactFrames() const { return m_exactFrames; }
    void setExactFrames(bool exact) { m_exactFrames = exact; }
    /// A short description of the interval, for lists.
    QString intervalDisplay() const;

    /// Estimated number of images: frames that are shown longer than the interval give fewer.
    /// Nothing while nothing is known about the source.
    std::optional<int> expectedImages() const;

    /// What is known about the source; empty before loadVideoInfo() or setVideoFacts().
    const VideoInfo& videoInfo() const { return m_videoInfo; }
    /// Reads the source and returns when that is done: see VideoInfoLoader for reading without
    /// blocking the user interface.
    void loadVideoInfo();
    /// Takes over facts that were read in another thread.
    void setVideoFacts(const VideoFacts& facts) { m_videoInfo.setFacts(facts); }

    /// Writes the settings to the file of batch defaults, except for the source and the output
    /// folder.
    void saveAsDefault() const;
    /// Takes the last used profiles and then the settings from the file of batch defaults. Settings
    /// that the file does not contain stay unchanged.
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
    // The initial profiles are owned by the job; profiles that are set are not.
    const std::unique_ptr<ImageProfile> m_ownImageProfile;
    const std::unique_ptr<FileNameProfile> m_ownFilenameProfile;
    ImageProfile* m_imageProfile;
    FileNameProfile* m_filenameProfile;
};
