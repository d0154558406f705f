#include "qtav/src/MediaFile.h"

#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/FFmpegLog.h"
#include "qtav/src/PacketHandle.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <vector>

namespace QtAV {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("QtAV::AVDemuxer", text);
}

bool isAvi(const AVFormatContext& format)
{
    return std::strcmp(format.iformat->name, "avi") == 0;
}

bool isMp4(const AVFormatContext& format)
{
    return std::strcmp(format.iformat->name, "mov,mp4,m4a,3gp,3g2,mj2") == 0;
}

bool reordersPictures(AVCodecID codec)
{
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(codec);
    return descriptor && (descriptor->props & AV_CODEC_PROP_REORDER);
}

bool isCover(const AVStream& stream)
{
    return stream.disposition & AV_DISPOSITION_ATTACHED_PIC;
}

bool hasUnknownSize(const AVStream& stream)
{
    const AVCodecParameters& parameters = *stream.codecpar;
    return parameters.codec_type == AVMEDIA_TYPE_VIDEO && !isCover(stream) &&
           (parameters.width <= 0 || parameters.height <= 0);
}

/// MP4 and MOV files state of each stream all that reading and seeking need, except where FFmpeg
/// does not trust the size that they state.
bool describesItsStreams(const AVFormatContext& format)
{
    return isMp4(format) &&
           std::none_of(format.streams, format.streams + format.nb_streams,
                        [](const AVStream* stream) { return hasUnknownSize(*stream); });
}

/// Finds out what the streams are like, for which FFmpeg decodes some pictures unless it is denied
/// all decoders. Nobody sees those pictures: they need not be filtered.
int findStreamInfo(AVFormatContext& format)
{
    std::optional<FFmpegLogPause> expectedErrors;
    if (describesItsStreams(format)) {
        av_freep(&format.codec_whitelist);
        format.codec_whitelist = av_strdup("none");
        expectedErrors.emplace();
    }
    std::vector<AVDictionary*> options(format.nb_streams, nullptr);
    for (AVDictionary*& ofStream : options)
        av_dict_set(&ofStream, "skip_loop_filter", "all", 0);
    const int result =
        avformat_find_stream_info(&format, options.empty() ? nullptr : options.data());
    for (AVDictionary*& ofStream : options)
        av_dict_free(&ofStream);
    return result;
}

/// A bare sequence of pictures, without a container that would tell times.
bool isRawStream(const AVFormatContext& format)
{
    constexpr const char* Names[] = {"h264", "hevc",      "vvc",  "mpegvideo", "m4v", "vc1",
                                     "h263", "cavsvideo", "avs2", "avs3",      "obu", "dirac"};
    return std::any_of(std::begin(Names), std::end(Names), [&format](const char* name) {
        return std::strcmp(format.iformat->name, name) == 0;
    });
}

} // namespace

std::unique_ptr<MediaFile> MediaFile::open(const QString& path, QString& error)
{
    // Opening a pipe or a device would wait for somebody to write to it.
    const QFileInfo info(path);
    if (!info.exists()) {
        error = tr("The file does not exist.");
        return nullptr;
    }
    if (!info.isFile()) {
        error = tr("This is not a file.");
        return nullptr;
    }
    std::unique_ptr<MediaFile> file(new MediaFile);
    file->m_path = path;
    if (!file->openInput(error))
        return nullptr;
    file->findStreams();
    file->findStart();
    return file;
}

MediaFile::~MediaFile() = default;

bool MediaFile::openInput(QString& error)
{
    routeFFmpegLog();
    AVDictionary* options = nullptr;
    // A playlist must not make the program fetch something from elsewhere.
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    AVFormatContext* context = nullptr;
    const QByteArray url = "file:" + QFile::encodeName(m_path);
    int result = avformat_open_input(&context, url.constData(), nullptr, &options);
    av_dict_free(&options);
    m_format.reset(context);
    if (result >= 0)
        result = findStreamInfo(*m_format);
    if (result < 0) {
        error = ffmpegErrorText(result);
        m_format.reset();
    }
    return result >= 0;
}

void MediaFile::findStreams()
{
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        const AVStream& stream = *m_format->streams[i];
        if (stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !isCover(stream))
            m_videoStreams.append(static_cast<int>(i));
        else if (stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO)
            m_audioStreams.append(static_cast<int>(i));
    }
}

void MediaFile::findStart()
{
    if (m_format->start_time == AV_NOPTS_VALUE)
        return;
    m_startTicks = m_format->start_time;
    const AVRational microsecond{1, AV_TIME_BASE};
    for (const int index : m_videoStreams + m_audioStreams) {
        const AVStream& stream = *m_format->streams[index];
        if (stream.start_time == AV_NOPTS_VALUE)
            continue;
        // The container's start is some stream's, rounded: take it from there unrounded.
        const qint64 rounded = av_rescale_q(stream.start_time, stream.time_base, microsecond);
        if (qAbs(rounded - m_format->start_time) <= 1) {
            m_startTicks = stream.start_time;
            m_startTimeBase = stream.time_base;
            return;
        }
    }
}

const AVCodecParameters* MediaFile::audioParameters() const
{
    return m_audio >= 0 ? m_format->streams[m_audio]->codecpar : nullptr;
}

Timeline MediaFile::timeline(int stream) const
{
    return Timeline(m_format->streams[stream]->time_base, m_startTicks, m_startTimeBase);
}

bool MediaFile::selectVideo(int stream)
{
    m_video = stream;
    m_parameters.reset();
    m_order.reset();
    m_unpackBFrames.reset();
    m_rawStream = false;
    if (stream < 0)
        return true;
    prepareVideoPipeline();
    return !m_rawStream || indexRawStream();
}

void MediaFile::prepareVideoPipeline()
{
    AVStream& stream = *m_format->streams[m_video];
    auto parameters = std::make_shared<StreamParameters>();
    parameters->codec.reset(avcodec_parameters_alloc());
    Q_CHECK_PTR(parameters->codec.get());
    avcodec_parameters_copy(parameters->codec.get(), stream.codecpar);

    if (isAvi(*m_format) && stream.codecpar->codec_id == AV_CODEC_ID_MPEG4) {
        AVBSFContext* filter = nullptr;
        if (av_bsf_alloc(av_bsf_get_by_name("mpeg4_unpack_bframes"), &filter) >= 0) {
            m_unpackBFrames.reset(filter);
            avcodec_parameters_copy(filter->par_in, stream.codecpar);
            filter->time_base_in = stream.time_base;
            if (av_bsf_init(filter) >= 0)
                avcodec_parameters_copy(parameters->codec.get(), filter->par_out);
            else
                m_unpackBFrames.reset();
        }
    }

    m_rawStream = isRawStream(*m_format);
    const int delay = stream.codecpar->video_delay;
    if (m_rawStream || (isAvi(*m_format) && delay > 0))
        m_order = std::make_unique<PresentationOrder>(*parameters->codec, delay);

    parameters->timeline =
        m_rawStream ? Timeline(stream.time_base, 0, stream.time_base) : timeline(m_video);
    parameters->frameRate = av_guess_frame_rate(m_format.get(), &stream, nullptr);
    parameters->sampleAspectRatio = stream.sample_aspect_ratio;
    parameters->orientation = orientationFromDisplayMatrix(displayMatrixOf(stream));
    const AVDictionaryEntry* alpha = av_dict_get(stream.metadata, "alpha_mode", nullptr, 0);
    parameters->hasAlphaLayer = alpha && std::strcmp(alpha->value, "1") == 0;
    m_parameters = std::move(parameters);
}

MediaFile::Read MediaFile::read(PacketPtr& packet)
{
    while (m_ready.empty()) {
        if (m_ended)
            return Read::End;
        PacketPtr fresh;
        const Read result = readFromContainer(fresh);
        if (result == Read::Failure)
            return result;
        if (result == Read::End) {
            m_ended = true;
            if (m_order) {
                m_order->finish();
                takeOrdered();
            }
        } else if (fresh->stream_index == m_audio) {
            m_ready.push_back(std::move(fresh));
        } else if (fresh->stream_index == m_video && fresh->size > 0) {
            acceptVideo(std::move(fresh));
        }
    }
    packet = std::move(m_ready.front());
    m_ready.pop_front();
    return Read::Packet;
}

MediaFile::Read MediaFile::readFromContainer(PacketPtr& packet)
{
    packet = makePacket();
    const int result = av_read_frame(m_format.get(), packet.get());
    if (result >= 0) {
        m_failures = 0;
        return Read::Packet;
    }
    if (result == AVERROR_EOF)
        return Read::End;
    m_errorText = ffmpegErrorText(result);
    return ++m_failures < MostFailures ? Read::Failure : Read::End;
}

void MediaFile::acceptVideo(PacketPtr packet)
{
    if (!m_unpackBFrames) {
        orderVideo(std::move(packet));
        return;
    }
    if (av_bsf_send_packet(m_unpackBFrames.get(), packet.get()) < 0)
        return;
    PacketPtr unpacked = makePacket();
    while (av_bsf_receive_packet(m_unpackBFrames.get(), unpacked.get()) >= 0) {
        orderVideo(std::move(unpacked));
        unpacked = makePacket();
    }
}

void MediaFile::orderVideo(PacketPtr packet)
{
    setMissingTime(*packet);
    if (!m_order) {
        m_ready.push_back(std::move(packet));
        return;
    }
    m_order->push(std::move(packet));
    takeOrdered();
}

void MediaFile::takeOrdered()
{
    while (PacketPtr packet = m_order->pop())
        m_ready.push_back(std::move(packet));
}

void MediaFile::setMissingTime(AVPacket& packet)
{
    if (m_rawStream || presentationTicks(packet) == AV_NOPTS_VALUE)
        packet.dts = m_nextTicks;
    m_nextTicks = (m_rawStream ? packet.dts : presentationTicks(packet)) + frameTicks(packet);
}

qint64 MediaFile::frameTicks(const AVPacket& packet) const
{
    if (packet.duration > 0)
        return packet.duration;
    const AVRational rate = m_parameters->frameRate;
    if (rate.num <= 0 || rate.den <= 0)
        return 1;
    return std::max<qint64>(1, av_rescale_q(1, av_inv_q(rate), m_parameters->timeline.timeBase()));
}

bool MediaFile::indexRawStream()
{
    m_rawKeyFrames.clear();
    m_rawLength = 0;
    PacketPtr packet;
    for (;;) {
        const Read result = read(packet);
        if (result == Read::End)
            break;
        if (result == Read::Failure || packet->stream_index != m_video)
            continue;
        if (packet->flags & AV_PKT_FLAG_KEY)
            m_rawKeyFrames.append({packet->pos, packet->dts, packet->pts});
    }
    m_rawLength = m_nextTicks;
    return rewind();
}

bool MediaFile::jumpInRawStream(qint64 ms)
{
    const auto isAfter = [this](qint64 wanted, const RawKeyFrame& keyFrame) {
        return wanted < m_parameters->timeline.milliseconds(keyFrame.presentationTicks);
    };
    auto next = std::upper_bound(m_rawKeyFrames.cbegin(), m_rawKeyFrames.cend(), ms, isAfter);
    if (next == m_rawKeyFrames.cbegin())
        return rewind();
    const RawKeyFrame& keyFrame = *std::prev(next);
    forgetPosition();
    m_nextTicks = keyFrame.decodingTicks;
    return av_seek_frame(m_format.get(), -1, keyFrame.position, AVSEEK_FLAG_BYTE) >= 0;
}

void MediaFile::forgetPosition()
{
    m_ready.clear();
    m_nextTicks = 0;
    m_ended = false;
    m_failures = 0;
    if (m_order)
        m_order->reset();
    if (m_unpackBFrames)
        av_bsf_flush(m_unpackBFrames.get());
}

bool MediaFile::jumpNear(qint64 ms)
{
    if (m_rawStream)
        return jumpInRawStream(ms);
    forgetPosition();
    const qint64 ticks = m_parameters->timeline.lastTickOf(ms);
    return av_seek_frame(m_format.get(), m_video, ticks, AVSEEK_FLAG_BACKWARD) >= 0;
}

bool MediaFile::jumpNearInAudio(qint64 ms)
{
    forgetPosition();
    const qint64 ticks = timeline(m_audio).lastTickOf(ms);
    return av_seek_frame(m_format.get(), m_audio, ticks, AVSEEK_FLAG_BACKWARD) >= 0;
}

bool MediaFile::rewind()
{
    forgetPosition();
    // Searching a damaged stream for its first time may end anywhere; its first byte is certain.
    const bool goesByBytes = m_rawStream || jumpsAnywhere();
    if (goesByBytes && av_seek_frame(m_format.get(), -1, 0, AVSEEK_FLAG_BYTE) >= 0)
        return true;
    const qint64 first = m_parameters ? m_parameters->timeline.lastTickOf(0) : 0;
    const int stream = m_parameters ? m_video : -1;
    return av_seek_frame(m_format.get(), stream, first, AVSEEK_FLAG_BACKWARD) >= 0 || reopen();
}

bool MediaFile::reopen()
{
    forgetPosition();
    return openInput(m_errorText);
}

qint64 MediaFile::statedDuration() const
{
    const bool isGuess = m_format->duration_estimation_method == AVFMT_DURATION_FROM_BITRATE;
    if (m_format->duration == AV_NOPTS_VALUE || isGuess)
        return 0;
    return std::max<qint64>(0, m_format->duration / (AV_TIME_BASE / 1000));
}

bool MediaFile::durationIsMeasured() const
{
    return m_format->duration_estimation_method == AVFMT_DURATION_FROM_PTS;
}

std::optional<qint64> MediaFile::confirmedDuration()
{
    const qint64 stated = statedDuration();
    if (stated == 0)
        return std::nullopt;
    const bool canCheck = m_video >= 0 && !durationIsMeasured();
    const bool isConfirmed = !canCheck || (reaches(stated) && !showsPicturesAfter(stated));
    return isConfirmed ? std::optional(stated) : std::nullopt;
}

/// False where the file is cut off long before a position.
bool MediaFile::reaches(qint64 ms)
{
    // Landing this close to the end shows that the file is whole, or misses a little at most.
    const qint64 closeMs = std::min<qint64>(15000, ms / 10);
    const qint64 roundingMs = std::min<qint64>(1000, ms / 10);
    const std::optional<qint64> landed = firstTimeAt(ms);
    if (!landed)
        return false;
    return *landed + closeMs >= ms || readToEnd() + roundingMs >= ms;
}

/// Newer releases of FFmpeg end an MP4 file where its last packet has been decoded. A picture that
/// was decoded earlier may be shown after that.
bool MediaFile::showsPicturesAfter(qint64 ms)
{
    // No codec lets more pictures than this wait for one that is decoded later.
    constexpr int MostWaiting = 16;
    const AVStream& stream = *m_format->streams[m_video];
    if (!isMp4(*m_format) || !reordersPictures(stream.codecpar->codec_id))
        return false;
    AVStream* const indexed = m_format->streams[m_video];
    const int count = avformat_index_get_entries_count(indexed);
    const AVIndexEntry* entry =
        avformat_index_get_entry(indexed, std::max(0, count - 1 - MostWaiting));
    forgetPosition();
    if (!entry || av_seek_frame(m_format.get(), m_video, entry->timestamp,
                                AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY) < 0)
        return false;
    const qint64 lastTicks = timeline(m_video).lastTickOf(ms);
    PacketPtr packet;
    // The index of a file in fragments may end far from its end.
    for (int pictures = 0; pictures < 2 * MostWaiting;) {
        const Read result = readFromContainer(packet);
        if (result == Read::End)
            return false;
        if (result == Read::Failure || packet->stream_index != m_video)
            continue;
        ++pictures;
        const bool isShown = !(packet->flags & AV_PKT_FLAG_DISCARD);
        if (isShown && packet->pts != AV_NOPTS_VALUE && packet->pts > lastTicks)
            return true;
    }
    return false;
}

qint64 MediaFile::measuredDuration()
{
    if (m_rawStream)
        return m_parameters->timeline.milliseconds(m_rawLength);
    // Halve towards the last position at which anything can be read. A file that states no length
    // at all is read through.
    qint64 readable = 0;
    if (m_video >= 0 && statedDuration() > 0) {
        qint64 unreadable = statedDuration() + 1000;
        while (unreadable - readable > 1000) {
            const qint64 middle = readable + (unreadable - readable) / 2;
            (firstTimeAt(middle) ? readable : unreadable) = middle;
        }
    }
    const bool ready = readable > 0 ? jumpNear(readable) : rewind();
    return ready ? readToEnd() : 0;
}

/// The time of the first video packet that can be read after a jump, in milliseconds.
std::optional<qint64> MediaFile::firstTimeAt(qint64 ms)
{
    if (!jumpNear(ms))
        return std::nullopt;
    for (PacketPtr packet;;) {
        const Read result = readFromContainer(packet);
        if (result == Read::End)
            return std::nullopt;
        if (result == Read::Packet && packet->stream_index == m_video &&
            presentationTicks(*packet) != AV_NOPTS_VALUE)
            return m_parameters->timeline.milliseconds(presentationTicks(*packet));
    }
}

qint64 MediaFile::readToEnd()
{
    qint64 end = 0;
    for (PacketPtr packet;;) {
        const Read result = readFromContainer(packet);
        if (result == Read::End)
            return end;
        const int stream = result == Read::Packet ? packet->stream_index : -1;
        const bool counts = m_videoStreams.contains(stream) || m_audioStreams.contains(stream);
        if (!counts || presentationTicks(*packet) == AV_NOPTS_VALUE)
            continue;
        const qint64 endTicks = presentationTicks(*packet) + packet->duration;
        end = std::max(end, timeline(stream).milliseconds(endTicks));
    }
}

} // namespace QtAV
