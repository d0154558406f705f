#include "tests/support/SampleTable.h"

#include <QFileInfo>

#include <array>

namespace testsupport {

namespace {

constexpr QSize small{160, 120};
constexpr QSize medium{320, 240};
constexpr Rational variableRate{0, 1};
constexpr Rational pal{25, 1};
constexpr Rational film{24000, 1001};
constexpr Rational ntsc{30000, 1001};
constexpr Rational ntscFields{60000, 1001};
constexpr QSize palSize{720, 576};
constexpr QSize oddSize{321, 241};

/// The unit of the times in a container, determined by the file's extension.
Rational tickOf(const QString& file)
{
    const QString extension = QFileInfo(file).suffix();
    const auto isOneOf = [&](std::initializer_list<const char*> extensions) {
        for (const char* candidate : extensions) {
            if (extension == QLatin1String(candidate)) {
                return true;
            }
        }
        return false;
    };
    if (isOneOf({"mkv", "webm", "flv", "wmv"})) {
        return {1, 1000};
    }
    if (isOneOf({"ts", "m2ts", "mpg", "vob"})) {
        return {1, 90000};
    }
    return {0, 1};
}

/// Builds one entry of the table, with the defaults of most samples.
struct Entry : Sample
{
    Entry(const char* name, int frameCount, Rational rate = pal, QSize size = small)
    {
        file = QString::fromUtf8(name);
        frames = frameCount;
        frameRate = rate;
        tick = tickOf(file);
        codedSize = size;
        displaySize = size;
    }

    Entry& with(Traits more)
    {
        traits |= more;
        return *this;
    }
    Entry& shownAs(QSize size)
    {
        displaySize = size;
        return *this;
    }
    Entry& startingAt(Rational seconds)
    {
        start = seconds;
        return *this;
    }
    Entry& countingFrom(int number)
    {
        firstNumber = number;
        return *this;
    }
    Entry& withSoundUpTo(qint64 ms)
    {
        traits |= Trait::Sound;
        soundEndMs = ms;
        return *this;
    }
    Entry& at(QList<qint64> times)
    {
        traits |= Trait::VariableRate;
        timesMs = std::move(times);
        return *this;
    }
};

QList<Sample> joined(std::initializer_list<QList<Sample>> lists)
{
    QList<Sample> all;
    for (const auto& list : lists) {
        all += list;
    }
    return all;
}

QList<Sample> h264Samples()
{
    return {
        Entry("h264_bframes.mp4", 100, pal, medium),
        Entry("h264_gop250.mp4", 520),
        Entry("h264_open_gop_bframes.mp4", 100).with(Trait::OpenGop),
        Entry("h264_intra_only.mp4", 50),
        Entry("h264_intra_refresh.mp4", 100).with(Trait::IntraRefresh),
        Entry("h264_baseline.mp4", 50),
        Entry("h264_one_frame.mp4", 1),
        Entry("h264_23976fps.mp4", 96, film),
        Entry("h264_5994fps.mp4", 120, ntscFields),
        Entry("h264_30fps.mp4", 90, {30, 1}),
        Entry("h264_1fps.mp4", 20, {1, 1}),
        Entry("h264_1080p.mp4", 60, {30, 1}, {1920, 1080}).with(Trait::Large),
        Entry("h264_10bit.mp4", 50),
        Entry("h264_422.mp4", 50),
        Entry("h264_444.mp4", 50),
        Entry("h264_fragmented.mp4", 75),
    };
}

QList<Sample> codecSamples()
{
    return {
        Entry("hevc_8bit.mp4", 75),
        Entry("hevc_10bit.mkv", 75, pal, medium),
        Entry("hevc_open_gop.mp4", 75).with(Trait::OpenGop),
        Entry("hevc_temporal_layers.mp4", 75),
        Entry("vp8.webm", 75),
        Entry("vp9.webm", 75),
        Entry("vp9.mp4", 60, {30, 1}),
        Entry("vp9_10bit.webm", 50),
        Entry("av1.mp4", 50),
        Entry("av1.webm", 50),
        Entry("vp8_alpha.webm", 50).with(Trait::Alpha),
        Entry("vp9_alpha.webm", 50).with(Trait::Alpha),
        Entry("prores_alpha.mov", 50).with(Trait::Alpha),
        Entry("mpeg2.ts", 75).with(Trait::NoStatedDuration | Trait::OpenGop),
        Entry("mpeg2.mpg", 75, pal, medium).with(Trait::NoStatedDuration | Trait::OpenGop),
        Entry("mpeg2_ntsc.mpg", 60, ntsc, medium).with(Trait::NoStatedDuration | Trait::OpenGop),
        Entry("mpeg1.mpg", 50, pal, medium).with(Trait::NoStatedDuration | Trait::OpenGop),
        Entry("h264.ts", 75).with(Trait::NoStatedDuration),
        Entry("h264_2fps.ts", 120, {2, 1}).with(Trait::NoStatedDuration),
        Entry("h264_5994fps.ts", 120, ntscFields).with(Trait::NoStatedDuration),
        Entry("hevc.ts", 50).with(Trait::NoStatedDuration),
        Entry("mpeg4_bframes.avi", 75).with(Trait::NoPresentationTimes),
        Entry("mpeg4_packed_bframes.avi", 75).with(Trait::NoPresentationTimes),
        Entry("h264_bframes.avi", 75).with(Trait::NoPresentationTimes),
        Entry("mpeg4.mp4", 50),
        Entry("msmpeg4.avi", 50, pal, medium).with(Trait::NoPresentationTimes),
        Entry("mjpeg.avi", 50).with(Trait::NoPresentationTimes),
        Entry("theora.ogv", 75),
        Entry("wmv2.wmv", 75),
        Entry("flv1.flv", 75),
        Entry("h264_bframes.flv", 75, pal, medium),
        // The AVI states that its pixels are square, unlike the pictures in it.
        Entry("dv.avi", 15, pal, palSize).with(Trait::NoPresentationTimes),
        Entry("dv.dv", 15, pal, palSize)
            .shownAs({768, 576})
            .with(Trait::NoPresentationTimes | Trait::Anamorphic),
        Entry("prores.mov", 25),
        Entry("animated.gif", 40),
        Entry("ffv1.mkv", 25),
        Entry("raw.h264", 75, pal, medium)
            .with(Trait::NoStatedDuration | Trait::NoPresentationTimes),
        Entry("raw.hevc", 50).with(Trait::NoStatedDuration | Trait::NoPresentationTimes),
        Entry("raw.m2v", 50)
            .with(Trait::NoStatedDuration | Trait::NoPresentationTimes | Trait::OpenGop),
    };
}

QList<Sample> geometrySamples()
{
    return {
        Entry("turned_90.mp4", 50, pal, {120, 160})
            .shownAs(small)
            .with(Trait::Turned | Trait::Sideways),
        Entry("turned_180.mp4", 50).with(Trait::Turned),
        Entry("turned_270.mp4", 50, pal, {120, 160})
            .shownAs(small)
            .with(Trait::Turned | Trait::Sideways),
        Entry("mirrored_left_right.mp4", 50).with(Trait::Turned),
        Entry("mirrored_up_down.mp4", 50).with(Trait::Turned),
        Entry("transposed.mp4", 50, pal, {120, 160})
            .shownAs(small)
            .with(Trait::Turned | Trait::Sideways),
        Entry("anti_transposed.mp4", 50, pal, {120, 160})
            .shownAs(small)
            .with(Trait::Turned | Trait::Sideways),
        Entry("turned_90_anamorphic.mp4", 50, pal, {240, 320})
            .shownAs({320, 360})
            .with(Trait::Turned | Trait::Sideways | Trait::Anamorphic),
        Entry("anamorphic_pal.mpg", 25, pal, palSize)
            .shownAs({768, 576})
            .with(Trait::NoStatedDuration | Trait::Anamorphic | Trait::OpenGop),
        Entry("anamorphic_ntsc.mp4", 30, ntsc, {720, 480})
            .shownAs({720, 540})
            .with(Trait::Anamorphic),
        Entry("anamorphic_4_3.mkv", 25, pal, {120, 120}).shownAs(small).with(Trait::Anamorphic),
        Entry("h264_cropped.mp4", 25, pal, medium),
        Entry("hevc_cropped.mp4", 25, pal, medium),
        Entry("h264_clean_aperture.mp4", 25, pal, medium).with(Trait::CleanAperture),
        Entry("h264_clean_aperture.mov", 25, pal, medium).with(Trait::CleanAperture),
        Entry("h264_interlaced.mp4", 50).with(Trait::Interlaced),
        Entry("mpeg2_interlaced.ts", 50)
            .with(Trait::Interlaced | Trait::NoStatedDuration | Trait::OpenGop),
        Entry("fields_mpeg2_tff.ts", 25, pal, {352, 288})
            .with(Trait::Interlaced | Trait::NoStatedDuration | Trait::OpenGop),
        Entry("fields_h264_bff.ts", 25, pal, {352, 288})
            .with(Trait::Interlaced | Trait::NoStatedDuration),
        Entry("h264_fields_single.ts", 78).with(Trait::Interlaced | Trait::NoStatedDuration),
        Entry("h264_fields_single.m2ts", 79)
            .with(Trait::Interlaced | Trait::NoStatedDuration | Trait::OpenGop),
        Entry("h264_fields_paired.ts", 78).with(Trait::Interlaced | Trait::NoStatedDuration),
        Entry("h264_fields_paired.m2ts", 79)
            .with(Trait::Interlaced | Trait::NoStatedDuration | Trait::OpenGop),
        Entry("h264_fields.h264", 78)
            .with(Trait::Interlaced | Trait::NoStatedDuration | Trait::NoPresentationTimes),
        Entry("fields_dv_pal.avi", 12, pal, palSize)
            .with(Trait::Interlaced | Trait::NoPresentationTimes),
        Entry("odd_size_420.mkv", 20, pal, oddSize),
        Entry("odd_size_444.mkv", 20, pal, oddSize),
        Entry("odd_size_444.mp4", 20, pal, oddSize),
        Entry("odd_size.webm", 20, pal, oddSize),
        Entry("odd_size.gif", 20, pal, oddSize),
        Entry("odd_size_small.mkv", 20, pal, {175, 99}),
        Entry("odd_size_small.webm", 20, pal, {175, 99}),
        Entry("h264_2160p.mp4", 12, {30, 1}, {3840, 2160}).with(Trait::Large),
        Entry("hevc_2160p.mp4", 8, {30, 1}, {3840, 2160}).with(Trait::Large),
        Entry("h264_full_range.mp4", 50, pal, medium),
    };
}

QList<qint64> variableTimes()
{
    QList<qint64> times;
    for (int n = 0; n < 60; ++n) {
        times.append(n / 4 * 173 + std::array{0, 40, 60, 140}[size_t(n % 4)]);
    }
    return times;
}

QList<Sample> containerSamples()
{
    return {
        Entry("variable_rate.mkv", 60, variableRate).at(variableTimes()),
        Entry("variable_rate.mp4", 60, variableRate).at(variableTimes()),
        Entry("h264_23976fps.mkv", 96, film),
        Entry("h264_5994fps.mov", 60, ntscFields),
        Entry("edit_list.mp4", 65, pal, medium).countingFrom(35).with(Trait::StartsInsideGop),
        Entry("edit_list_end.mp4", 42, pal, medium),
        Entry("edit_list_end_open_gop.mp4", 55).with(Trait::OpenGop),
        Entry("h264_index_first.mp4", 100, pal, medium),
        Entry("h264_bframes.mkv", 100, pal, medium),
        Entry("sound.mp4", 75).with(Trait::Sound),
        Entry("sound_earlier.mp4", 75).startingAt({48, 100}).with(Trait::Sound),
        Entry("sound_earlier.mkv", 75).startingAt({490, 1000}).with(Trait::Sound),
        Entry("sound_earlier.ts", 75)
            .startingAt({43200 + 902, 90000})
            .with(Trait::Sound | Trait::NoStatedDuration),
        Entry("sound_later.mp4", 75).with(Trait::Sound),
        Entry("sound_later.mkv", 75).with(Trait::Sound),
        Entry("sound_first_stream.mkv", 50).startingAt({10, 1000}).with(Trait::Sound),
        Entry("no_duration.webm", 75).with(Trait::NoStatedDuration),
        Entry("no_duration.flv", 75).with(Trait::NoStatedDuration),
        Entry("no_cues.webm", 75),
        Entry("impossible_duration.webm", 75).with(Trait::NoStatedDuration),
        Entry("cover_and_video.mp4", 50).with(Trait::Sound | Trait::CoverArt),
        Entry("cover_and_video.mkv", 50)
            .startingAt({10, 1000})
            .with(Trait::Sound | Trait::CoverArt),
        Entry("two_videos.mkv", 50).with(Trait::TwoVideoStreams),
        Entry("two_videos.mp4", 50).with(Trait::TwoVideoStreams),
        Entry("two words.mp4", 50),
        Entry("dots.in.the.name.mp4", 50),
        Entry("single ' and double \" quotes.mp4", 50),
        Entry("Übergröße 映像 видео.mp4", 50),
        Entry("100% %d %03d.mp4", 50),
        Entry("concat:colon|bar.mp4", 50),
        Entry("-dash first.mp4", 50),
        Entry("UPPER CASE.MP4", 50),
        Entry("wrong_extension.avi", 50),
    };
}

/// The effect of the encoder's packed B-frames: two empty chunks behind the first picture.
QList<qint64> xvidTimes()
{
    QList<qint64> times{0};
    for (int n = 1; n < 250; ++n) {
        times.append((n + 2) * 40);
    }
    return times;
}

QList<Sample> missingTimesSamples()
{
    const QSize tiny{128, 96};
    const Traits wrapping = Trait::NoStatedDuration | Trait::OpenGop;
    const Traits program = wrapping | Trait::UntimedPackets;
    const Traits noTimes = Trait::NoPresentationTimes;
    return {
        Entry("mpeg4_xvid_packed.avi", 250, variableRate, medium).at(xvidTimes()).with(noTimes),
        Entry("mpeg4_xvid_unpacked.avi", 250, pal, medium).with(noTimes),
        Entry("mpeg4_vfw.mkv", 75).with(noTimes),
        Entry("mpeg4_vfw_unpacked.mkv", 250, pal, medium).with(noTimes),
        Entry("mpeg4_vfw_packed.mkv", 250, variableRate, medium).at(xvidTimes()).with(noTimes),
        Entry("h264_vfw.mkv", 75).with(noTimes),
        Entry("mpeg2_untimed_keys.mpg", 250, pal, tiny).with(program),
        Entry("mpeg2_untimed_keys.vob", 250, pal, tiny).with(program),
        Entry("mpeg2_untimed_keys_svcd.mpg", 250, pal, tiny).with(program),
        Entry("mpeg2_untimed_no_bframes.vob", 250, pal, tiny).with(program),
        Entry("mpeg1_untimed_keys.mpg", 125, pal, tiny).with(program),
        Entry("mpeg1_untimed_keys_vcd.mpg", 125, pal, tiny).with(program),
        Entry("mpeg1_untimed_no_bframes.mpg", 125, pal, tiny).with(program),
        Entry("mpeg2_untimed_keys_sound.vob", 250, pal, tiny)
            .startingAt({902, 90000})
            .with(program | Trait::Sound),
        Entry("h264_clock_wraps.ts", 75).with(Trait::NoStatedDuration),
        Entry("mpeg2_clock_wraps.ts", 75).with(wrapping),
        Entry("h264_all_flagged_key.mp4", 100, pal, medium),
        Entry("h264_open_gop.mov", 125).with(Trait::OpenGop),
        Entry("mpeg2_open_gop.mov", 125).with(Trait::OpenGop),
        Entry("h264_long_refresh.mp4", 250).with(Trait::IntraRefresh),
        Entry("h264_long_refresh.mkv", 250).with(Trait::IntraRefresh),
        Entry("h264_long_refresh.ts", 250).with(Trait::IntraRefresh | Trait::NoStatedDuration),
    };
}

/// Bursts of five frames 100 ms apart, each followed by 3, 10, 5 or 7 seconds without frames.
QList<qint64> screenRecordingTimes()
{
    QList<qint64> times;
    for (qint64 n = 0; n < 40; ++n) {
        const qint64 burst = std::array{0, 3400, 13800, 19200}[size_t(n / 5 % 4)];
        times.append(n / 20 * 26600 + burst + n % 5 * 100);
    }
    return times;
}

QList<Sample> gapSamples()
{
    const auto recording = [](const char* file) {
        return Entry(file, 40, variableRate).at(screenRecordingTimes());
    };
    return {
        recording("screen_recording.mkv"),
        recording("screen_recording.mp4"),
        recording("screen_recording.webm"),
        recording("screen_recording.gif"),
        Entry("video_from_3s.mp4", 75).startingAt({3, 1}).with(Trait::Sound),
        Entry("video_from_3s.mkv", 75).startingAt({3010, 1000}).with(Trait::Sound),
        Entry("video_from_3s.ts", 75)
            .startingAt({270902, 90000})
            .with(Trait::Sound | Trait::NoStatedDuration),
        Entry("sound_goes_on.mp4", 75).withSoundUpTo(13000),
        Entry("sound_goes_on.mkv", 75).startingAt({10, 1000}).withSoundUpTo(13008),
        Entry("sound_goes_on.ts", 75)
            .startingAt({902, 90000})
            .withSoundUpTo(12984)
            .with(Trait::NoStatedDuration),
        Entry("sound_goes_on.avi", 75).withSoundUpTo(13056).with(Trait::NoPresentationTimes),
    };
}

/// Frames that arrive when they are ready: 33 ms apart, some of them missing.
QList<qint64> unsteadyTimes()
{
    QList<qint64> times;
    for (qint64 n = 0; n < 150; ++n) {
        times.append(n / 6 * 330 + std::array{0, 33, 66, 132, 165, 264}[size_t(n % 6)]);
    }
    return times;
}

QList<Sample> recordingSamples()
{
    const Traits aviTraits = Trait::WrongDuration | Trait::NoPresentationTimes;
    return {
        Entry("duration_too_short.mkv", 100, pal, medium).with(Trait::WrongDuration),
        Entry("duration_too_long.mkv", 100, pal, medium).with(Trait::WrongDuration),
        Entry("duration_too_short.avi", 75).with(aviTraits),
        Entry("duration_too_long.avi", 75).with(aviTraits),
        Entry("duration_too_short.mp4", 100).with(Trait::WrongDuration),
        Entry("duration_too_long.mp4", 100).with(Trait::WrongDuration),
        Entry("size_change_h264.ts", 100).with(Trait::SizeChange | Trait::NoStatedDuration),
        Entry("size_change_mpeg2.ts", 100)
            .with(Trait::SizeChange | Trait::NoStatedDuration | Trait::OpenGop),
        Entry("fragmented_with_sound.mp4", 75).with(Trait::Sound),
        Entry("dash_segments.mp4", 100),
        Entry("browser_recording.webm", 150, variableRate)
            .at(unsteadyTimes())
            .with(Trait::NoStatedDuration),
        Entry("meeting.mp4", 150, variableRate).at(unsteadyTimes()).with(Trait::Sound),
        Entry("phone.mp4", 65, pal, {120, 160})
            .shownAs(small)
            .countingFrom(35)
            .with(Trait::Turned | Trait::Sideways | Trait::StartsInsideGop),
        Entry("recorder_died.mkv", 75).with(Trait::NoStatedDuration),
    };
}

} // namespace

QList<Sample> videoSampleTable()
{
    return joined({h264Samples(), codecSamples(), geometrySamples(), containerSamples(),
                   missingTimesSamples(), gapSamples(), recordingSamples()});
}

QList<Sample> noVideoSampleTable()
{
    QList<Sample> samples;
    for (const char* file :
         {"sound_only.mp3", "sound_only.mp4", "sound_only.wav", "sound_with_gap.mka",
          "sound_with_cover.mp3", "sound_with_cover.m4a", "sound_with_cover.flac"}) {
        samples.append(Entry(file, 0).with(Trait::NoVideo | Trait::Sound));
    }
    return samples;
}

QList<Sample> brokenSampleTable()
{
    QList<Sample> samples{
        Entry("truncated.mp4", 100, pal, medium).with(Trait::Damaged),
        Entry("truncated.ts", 75).with(Trait::Damaged | Trait::NoStatedDuration),
        Entry("truncated.mkv", 100, pal, medium).with(Trait::Damaged),
        Entry("truncated.avi", 75).with(Trait::Damaged | Trait::NoPresentationTimes),
        Entry("bit_flipped.mp4", 100, pal, medium).with(Trait::Damaged),
        Entry("bit_flipped.ts", 75).with(Trait::Damaged | Trait::NoStatedDuration),
        Entry("bit_flipped.mkv", 100, pal, medium).with(Trait::Damaged),
    };
    for (const char* file : {"truncated_without_moov.mp4", "empty.mp4", "text.mp4",
                             "random_bytes.mp4", "folder.mp4"}) {
        samples.append(Entry(file, 0).with(Trait::Unopenable));
    }
    return samples;
}

} // namespace testsupport
