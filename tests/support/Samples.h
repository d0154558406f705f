#pragma once

#include <QFlags>
#include <QList>
#include <QSize>
#include <QString>

/// The manifest of the sample videos that tests/media makes.
namespace testsupport {

/// A fraction of whole numbers; the denominator is positive.
struct Rational
{
    qint64 num = 0;
    qint64 den = 1;
};

/// What a test may want to choose samples by.
enum class Trait : quint32 {
    VariableRate = 1u << 0,        ///< the times stand in Sample::timesMs
    NoStatedDuration = 1u << 1,    ///< the container states no length, or an impossible one
    IntraRefresh = 1u << 2,        ///< no whole picture at a key packet but the first
    OpenGop = 1u << 3,             ///< key frames are followed by frames that need the GOP before
    Alpha = 1u << 4,               ///< lower half: left transparent, right with alpha 128 (of 255)
    Sound = 1u << 5,               ///< has a sound track
    Interlaced = 1u << 6,          ///< coded as two fields
    NoPresentationTimes = 1u << 7, ///< AVI and raw streams: times follow from the frame's number
    Turned = 1u << 8,              ///< has a display matrix
    Anamorphic = 1u << 9,          ///< pixels are not square
    TwoVideoStreams = 1u << 10,    ///< a second video, its numbers counting from 1000
    CoverArt = 1u << 11,           ///< an attached picture beside the video
    StartsInsideGop = 1u << 12,    ///< the first frame shown is no key frame (edit list)
    Large = 1u << 13,              ///< 1080 lines or more: slow to decode
    NoVideo = 1u << 14,            ///< opens, but has no video
    Damaged = 1u << 15,            ///< some frames are missing or wrong
    Unopenable = 1u << 16,         ///< no video file at all
    Sideways = 1u << 17,           ///< turned by a quarter: width and height change places
    WrongDuration = 1u << 18,      ///< the container states half of its length, or twice
    SizeChange = 1u << 19,         ///< from frame 50 on the pictures are 176x144
    UntimedPackets = 1u << 20,     ///< most packets state no time, and guesses from the others err
    CleanAperture = 1u << 21,      ///< 20 and 12 columns, 8 and 8 lines beside it are to be hidden
};
Q_DECLARE_FLAGS(Traits, Trait)
Q_DECLARE_OPERATORS_FOR_FLAGS(Traits)

/// One sample. All times are on the timeline that starts at 0 where the container starts.
struct Sample
{
    QString file;        ///< name within the sample folder
    int frames = 0;      ///< how many frames are shown; for damaged files, were there no damage
    Rational frameRate;  ///< frames a second; 0 for a variable rate
    Rational tick;       ///< the unit of the container's times in seconds; 0 where they are exact
    Rational start;      ///< time of the first frame in seconds
    int firstNumber = 0; ///< the number in the first frame that is shown
    QSize codedSize;     ///< as stored, less what is hidden
    QSize displaySize; ///< upright and with square pixels: the shorter side stretched, none shrunk
    Traits traits;
    QList<qint64> timesMs; ///< of each frame, for a variable rate only
    qint64 soundEndMs = 0; ///< where the sound ends, if that is long after the last frame

    [[nodiscard]] bool has(Trait trait) const { return traits.testFlag(trait); }
};

/// The path of a file in the sample folder, which the environment variable MORVANTILE_MEDIA names.
/// Ends the test program when that is not set.
[[nodiscard]] QString samplePath(const QString& file);

/// All undamaged videos but those of ColourSamples.h and those made for the tests of sound: every
/// frame can be decoded and bears its number.
[[nodiscard]] const QList<Sample>& allVideoSamples();

/// Those for tests that go through a video again and again: all of them, and every fifth where a
/// sanitizer watches. It sees each way through the code, but not each sample on each way.
[[nodiscard]] const QList<Sample>& videoSamplesToRepeat();

/// Files without video: sound alone, sound with a cover picture.
[[nodiscard]] const QList<Sample>& noVideoSamples();

/// Truncated and damaged files, and what is no video at all.
[[nodiscard]] const QList<Sample>& brokenSamples();

/// The sample of that name from any of the three lists; ends the test program when none is.
[[nodiscard]] const Sample& sampleNamed(QStringView file);

/// The time of the n-th shown frame, counted from 0, in whole milliseconds rounded down.
[[nodiscard]] qint64 frameTimeMs(const Sample& sample, int n);

/// The size at which the n-th shown frame is seen: that of the sample, unless its size changes.
[[nodiscard]] QSize displaySizeOf(const Sample& sample, int n);

/// The shown frames, counted from 0 and rising, whose packets the container marks as key packets;
/// where its marks are missing or wrong, those that the decoder calls key frames.
[[nodiscard]] QList<int> keyFrames(const Sample& sample);

} // namespace testsupport
