#pragma once

#include <QFlags>
#include <QList>
#include <QSize>
#include <QString>

/// The manifest of the sample videos made by tests/media.
namespace testsupport {

/// A fraction of whole numbers; the denominator is positive.
struct Rational
{
    qint64 num = 0;
    qint64 den = 1;
};

/// Properties by which tests choose samples.
enum class Trait : quint32 {
    VariableRate = 1u << 0,        ///< the times are in Sample::timesMs
    NoStatedDuration = 1u << 1,    ///< the container states no length, or an impossible one
    IntraRefresh = 1u << 2,        ///< no complete picture at key packets except the first
    OpenGop = 1u << 3,             ///< key frames are followed by frames that need the previous GOP
    Alpha = 1u << 4,               ///< lower half: left transparent, right with alpha 128 (of 255)
    Sound = 1u << 5,               ///< has a sound track
    Interlaced = 1u << 6,          ///< coded as two fields
    NoPresentationTimes = 1u << 7, ///< AVI and raw streams: times follow from the frame's number
    Turned = 1u << 8,              ///< has a display matrix
    Anamorphic = 1u << 9,          ///< pixels are not square
    TwoVideoStreams = 1u << 10,    ///< a second video, its numbers counting from 1000
    CoverArt = 1u << 11,           ///< an attached picture beside the video
    StartsInsideGop = 1u << 12,    ///< the first frame shown is not a key frame (edit list)
    Large = 1u << 13,              ///< 1080 lines or more: slow to decode
    NoVideo = 1u << 14,            ///< opens, but has no video
    Damaged = 1u << 15,            ///< some frames are missing or wrong
    Unopenable = 1u << 16,         ///< not a video file at all
    Sideways = 1u << 17,           ///< rotated by a quarter: width and height are swapped
    WrongDuration = 1u << 18,      ///< the container states half or twice its length
    SizeChange = 1u << 19,         ///< from frame 50 on the pictures are 176x144
    UntimedPackets = 1u << 20,     ///< most packets have no time, and guesses from the others are
                                   ///< wrong
    CleanAperture = 1u << 21,      ///< 20 and 12 columns, and 8 and 8 lines are to be hidden
};
Q_DECLARE_FLAGS(Traits, Trait)
Q_DECLARE_OPERATORS_FOR_FLAGS(Traits)

/// One sample. All times are on the timeline that starts at 0 where the container starts.
struct Sample
{
    QString file;        ///< name within the sample folder
    int frames = 0;      ///< number of frames shown; for damaged files, without the damage
    Rational frameRate;  ///< frames per second; 0 for a variable rate
    Rational tick;       ///< the unit of the container's times in seconds; 0 if they are exact
    Rational start;      ///< time of the first frame in seconds
    int firstNumber = 0; ///< the number in the first frame shown
    QSize codedSize;     ///< as stored, without hidden parts
    QSize displaySize; ///< upright and with square pixels: the shorter side stretched, none shrunk
    Traits traits;
    QList<qint64> timesMs; ///< of each frame, only for a variable rate
    qint64 soundEndMs = 0; ///< end of the sound if it is long after the last frame

    [[nodiscard]] bool has(Trait trait) const { return traits.testFlag(trait); }
};

/// The path of a file in the sample folder, which is given by the environment variable
/// MORVANTILE_MEDIA. Ends the test program if that is not set.
[[nodiscard]] QString samplePath(const QString& file);

/// All undamaged videos except those of ColourSamples.h and those for the tests of sound: every
/// frame can be decoded and has its number.
[[nodiscard]] const QList<Sample>& allVideoSamples();

/// For tests that read a video repeatedly: all of these, or every fifth with a sanitizer, which
/// then covers all code paths, but not each with every sample.
[[nodiscard]] const QList<Sample>& videoSamplesToRepeat();

/// The same of some of them: of each kind of sample that a test is about, at least one remains.
[[nodiscard]] QList<Sample> samplesToRepeat(const QList<Sample>& samples);

/// Files without video: only sound, or sound with a cover picture.
[[nodiscard]] const QList<Sample>& noVideoSamples();

/// Truncated and damaged files, and files that are not videos.
[[nodiscard]] const QList<Sample>& brokenSamples();

/// The sample with that name from any of the three lists; ends the test program if there is none.
[[nodiscard]] const Sample& sampleNamed(QStringView file);

/// The time of the n-th shown frame, counted from 0, in whole milliseconds rounded down.
[[nodiscard]] qint64 frameTimeMs(const Sample& sample, int n);

/// The display size of the n-th shown frame: that of the sample, unless its size changes.
[[nodiscard]] QSize displaySizeOf(const Sample& sample, int n);

/// The shown frames, counted from 0 and rising, whose packets the container marks as key packets.
/// If the marks are missing or wrong, the frames that the decoder reports as key frames.
[[nodiscard]] QList<int> keyFrames(const Sample& sample);

} // namespace testsupport
