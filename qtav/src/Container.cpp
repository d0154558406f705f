#include "qtav/src/Container.h"

#include "qtav/src/FFmpegLog.h"
#include "qtav/src/Mp4Boxes.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <mutex>
#include <vector>

namespace QtAV {

namespace {

/// Reading a packet is abandoned after this time if an interrupt is requested. Between packets, the
/// request is noticed after this time.
constexpr std::chrono::milliseconds longestPacket{100};

template <size_t Count>
bool isOneOf(const AVInputFormat& format, const char* const (&names)[Count])
{
    return std::any_of(std::begin(names), std::end(names),
                       [&format](const char* name) { return std::strcmp(format.name, name) == 0; });
}

bool isMp4(const AVInputFormat& format)
{
    return isOneOf(format, {"mov,mp4,m4a,3gp,3g2,mj2"});
}

/// Formats that name other files, or commands for making pictures, instead of holding pictures.
bool isScript(const AVInputFormat& format)
{
    return isOneOf(format, {"hls", "dash", "concat", "imf", "sdp", "rtsp", "image2", "image2pipe",
                            "lavfi", "tty", "ffmetadata", "webm_dash_manifest"});
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

/// MP4 and MOV files state everything about each stream that reading and seeking need, except if
/// FFmpeg does not trust the stated size.
bool describesItsStreams(const AVFormatContext& format)
{
    return isMp4(*format.iformat) &&
           std::none_of(format.streams, format.streams + format.nb_streams,
                        [](const AVStream* stream) { return hasUnknownSize(*stream); });
}

/// Determines the parameters of the streams. FFmpeg decodes some pictures for that unless it is
/// denied all decoders. Those pictures are never shown, so they need no loop filter.
int findStreamInfo(AVFormatContext& format, const PictureLimit& limit)
{
    std::optional<FFmpegLogPause> expectedErrors;
    if (describesItsStreams(format)) {
        av_freep(&format.codec_whitelist);
        format.codec_whitelist = av_strdup("none");
        expectedErrors.emplace();
    }
    std::vector<AVDictionary*> options(format.nb_streams, nullptr);
    for (AVDictionary*& ofStream : options) {
        av_dict_set(&ofStream, "skip_loop_filter", "all", 0);
        av_dict_set_int(&ofStream, "max_pixels", limit.mostPixels(), 0);
    }
    const int result =
        avformat_find_stream_info(&format, options.empty() ? nullptr : options.data());
    for (AVDictionary*& ofStream : options) {
        av_dict_free(&ofStream);
    }
    return result;
}

/// Covers declarations that are not checked explicitly. Applies to the whole process, so it only
/// rises: another file may be open with a higher limit.
void allowBlocksOf(size_t bytes)
{
    static std::mutex mutex;
    static size_t largest = 0; // guarded by mutex
    const std::lock_guard lock(mutex);
    if (bytes > largest) {
        largest = bytes;
        av_max_alloc(largest);
    }
}

/// Prevents a file from opening other files.
int refuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
    return AVERROR(EACCES);
}

} // namespace

Container::Container(QString path)
    : m_path(std::move(path))
{}

Container::~Container() = default;

std::unique_ptr<Container> Container::open(const QString& path, const IsCancelled& isCancelled,
                                           QString& error, const PictureLimit& limit)
{
    routeFFmpegLog();
    allowBlocksOf(limit.mostAtOnce());
    std::unique_ptr<Container> container(new Container(path));
    container->m_isCancelled = isCancelled;
    container->m_limit = limit;
    container->m_input = FileInput::open(path, isCancelled, error);
    if (!container->m_input) {
        return nullptr;
    }
    container->begin(Patience::None);
    std::optional<View> view = container->makeView(error);
    if (!view) {
        return nullptr;
    }
    container->m_view = std::move(*view);
    container->m_format = container->m_view.format.get();
    container->m_facts = factsOf(*container->m_format);
    container->findStreams();
    container->findStart();
    container->setInterrupt(isCancelled);
    return container;
}

std::optional<Container::View> Container::makeView(QString& error)
{
    View view;
    view.stream = std::make_unique<FileStream>(*m_input);
    const QByteArray name = QFile::encodeName(m_path);
    AVFormatContext* context = avformat_alloc_context();
    Q_CHECK_PTR(context);
    view.format.reset(context);
    context->pb = view.stream->context();
    context->flags |= AVFMT_FLAG_CUSTOM_IO;
    context->io_open = &refuseToOpen;
    context->interrupt_callback = {&Container::interrupt, this};

    const AVInputFormat* format = nullptr;
    int result = av_probe_input_buffer2(context->pb, &format, name.constData(), context, 0,
                                        context->format_probesize);
    if (result >= 0 && isScript(*format)) {
        error =
            QCoreApplication::translate("QtAV::AVDemuxer", "This is a list of files, not a video.");
        return std::nullopt;
    }
    if (result >= 0 && isMp4(*format) && declaresTooManyPictures(*m_input)) {
        error = QCoreApplication::translate(
            "QtAV::AVDemuxer", "The file is damaged: it declares more pictures than it can hold.");
        return std::nullopt;
    }
    if (result >= 0) {
        // This function frees the context on failure.
        AVFormatContext* opened = view.format.release();
        result = avformat_open_input(&opened, name.constData(), format, nullptr);
        view.format.reset(opened);
    }
    if (result >= 0) {
        result = findStreamInfo(*view.format, m_limit);
    }
    if (result >= 0 && m_input->error() == 0 && !m_wasInterrupted) {
        return view;
    }
    error = ffmpegErrorText(m_input->error() != 0 ? m_input->error() : result);
    return std::nullopt;
}

bool Container::StreamFacts::operator==(const StreamFacts& other) const
{
    return type == other.type && codec == other.codec && timeBase.num == other.timeBase.num &&
           timeBase.den == other.timeBase.den;
}

QVector<Container::StreamFacts> Container::factsOf(const AVFormatContext& format)
{
    QVector<StreamFacts> facts;
    for (unsigned i = 0; i < format.nb_streams; ++i) {
        const AVStream& stream = *format.streams[i];
        facts.append({stream.codecpar->codec_type, stream.codecpar->codec_id, stream.time_base});
    }
    return facts;
}

void Container::setInterrupt(IsCancelled isCancelled)
{
    m_input->setInterrupt([this] { return isInterrupted(); });
    m_isCancelled = std::move(isCancelled);
}

void Container::begin(Patience patience)
{
    m_patience = patience;
    m_began = std::chrono::steady_clock::now();
    m_wasInterrupted = false;
}

/// An interrupt stays set: FFmpeg polls it in several places on its way out.
bool Container::isInterrupted()
{
    if (m_wasInterrupted) {
        return true;
    }
    if (m_patience == Patience::Some &&
        std::chrono::steady_clock::now() - m_began < longestPacket) {
        return false;
    }
    m_wasInterrupted = m_isCancelled();
    return m_wasInterrupted;
}

/// Many packets that each come at once can take long together. Here an interrupt loses nothing.
bool Container::isInterruptedBetweenPackets()
{
    if (m_began - m_asked >= longestPacket) {
        m_asked = m_began;
        m_wasInterrupted = m_isCancelled();
    }
    return m_wasInterrupted;
}

int Container::interrupt(void* container)
{
    return static_cast<Container*>(container)->isInterrupted() ? 1 : 0;
}

void Container::findStreams()
{
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        const AVStream& stream = *m_format->streams[i];
        if (stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !isCover(stream)) {
            m_videoStreams.append(static_cast<int>(i));
        } else if (stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO) {
            m_audioStreams.append(static_cast<int>(i));
        }
    }
}

void Container::findStart()
{
    if (m_format->start_time == AV_NOPTS_VALUE) {
        return;
    }
    // An MP4 is shown from 0 on. In fragmented files FFmpeg 5.1 includes the priming samples of a
    // sound encoder before that.
    if (isMp4(*m_format->iformat) && m_format->start_time < 0) {
        return;
    }
    m_startTicks = m_format->start_time;
    const AVRational microsecond{1, AV_TIME_BASE};
    for (const int index : m_videoStreams + m_audioStreams) {
        const AVStream& stream = *m_format->streams[index];
        if (stream.start_time == AV_NOPTS_VALUE) {
            continue;
        }
        // The container's start is the rounded start of a stream: use the unrounded value.
        const qint64 rounded = av_rescale_q(stream.start_time, stream.time_base, microsecond);
        if (qAbs(rounded - m_format->start_time) <= 1) {
            m_startTicks = stream.start_time;
            m_startTimeBase = stream.time_base;
            return;
        }
    }
}

Timeline Container::timeline(int stream) const
{
    return Timeline(m_format->streams[stream]->time_base, m_startTicks, m_startTimeBase);
}

AVRational Container::frameRate(int stream) const
{
    return av_guess_frame_rate(m_format, m_format->streams[stream], nullptr);
}

bool Container::isAvi() const
{
    return isOneOf(*m_format->iformat, {"avi"});
}

bool Container::isRawStream() const
{
    return isOneOf(*m_format->iformat, {"h264", "hevc", "vvc", "mpegvideo", "m4v", "vc1", "h263",
                                        "cavsvideo", "avs2", "avs3", "obu", "dirac"});
}

QVector<qint64> Container::indexedKeyFrames(int index)
{
    AVStream* const stream = m_format->streams[index];
    const bool isMatroska = isOneOf(*m_format->iformat, {"matroska,webm"});
    // Matroska's index is read by the first seek.
    if (!(isMatroska && seekNear(index, 0)) && !indexesAllPackets()) {
        return {};
    }
    QVector<qint64> keys;
    const int entries = avformat_index_get_entries_count(stream);
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry* entry = avformat_index_get_entry(stream, i);
        if (entry->flags & AVINDEX_KEYFRAME) {
            keys.append(entry->timestamp);
        }
    }
    return keys;
}

bool Container::indexesAllPackets() const
{
    return isMp4(*m_format->iformat) || isAvi();
}

void Container::setMissingTimes(MissingTimes missing)
{
    m_missingTimes = missing;
    if (missing == MissingTimes::Leave) {
        m_format->flags |= AVFMT_FLAG_NOFILLIN;
    } else {
        m_format->flags &= ~AVFMT_FLAG_NOFILLIN;
    }
}

PacketAnswer Container::read(PacketPtr& packet)
{
    if (m_isLost) {
        return PacketAnswer::Failed;
    }
    begin(Patience::Some);
    if (isInterruptedBetweenPackets()) {
        return PacketAnswer::Cancelled;
    }
    packet = makePacket();
    const int result = av_read_frame(m_format, packet.get());
    if (result < 0) {
        return failed(result);
    }
    m_failures = 0;
    return PacketAnswer::Packet;
}

PacketAnswer Container::failed(int result)
{
    if (m_wasInterrupted) {
        m_isLost = true;
        return PacketAnswer::Cancelled;
    }
    // FFmpeg reports a read error as the end of the file.
    if (m_input->error() != 0) {
        m_errorText = ffmpegErrorText(m_input->error());
        m_isLost = true;
        return PacketAnswer::Failed;
    }
    if (isOverwritten()) {
        m_isLost = true;
        return PacketAnswer::Failed;
    }
    if (result == AVERROR_EOF) {
        return PacketAnswer::End;
    }
    m_errorText = ffmpegErrorText(result);
    return ++m_failures < maximumFailures ? PacketAnswer::Failed : PacketAnswer::End;
}

bool Container::isOverwritten()
{
    if (!m_input->hasShrunk()) {
        return false;
    }
    m_errorText = QCoreApplication::translate("QtAV::AVDemuxer",
                                              "The file was overwritten by another program.");
    return true;
}

void Container::forgetFailures()
{
    m_failures = 0;
    m_isLost = false;
    m_input->clearError();
    m_format->pb->error = 0;
    m_format->pb->eof_reached = 0;
    begin(Patience::None);
}

bool Container::seekNear(int stream, qint64 ticks)
{
    forgetFailures();
    const int result = av_seek_frame(m_format, stream, ticks, AVSEEK_FLAG_BACKWARD);
    m_isLost = m_wasInterrupted;
    return result >= 0 && !m_wasInterrupted;
}

std::optional<qint64> Container::seekToTail(int stream, int packets)
{
    AVStream* const indexed = m_format->streams[stream];
    const int count = avformat_index_get_entries_count(indexed);
    const AVIndexEntry* entry =
        count > 0 ? avformat_index_get_entry(indexed, std::max(0, count - 1 - packets)) : nullptr;
    if (!entry) {
        return std::nullopt;
    }
    const qint64 bytes = m_input->size() - entry->pos;
    forgetFailures();
    const int result =
        av_seek_frame(m_format, stream, entry->timestamp, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY);
    m_isLost = m_wasInterrupted;
    return result >= 0 && !m_wasInterrupted ? std::optional(bytes) : std::nullopt;
}

bool Container::seekToByte(qint64 position)
{
    forgetFailures();
    const int result = av_seek_frame(m_format, -1, position, AVSEEK_FLAG_BYTE);
    m_isLost = m_wasInterrupted;
    return result >= 0 && !m_wasInterrupted;
}

bool Container::reopen()
{
    forgetFailures();
    std::optional<View> view = makeView(m_errorText);
    if (!view) {
        return false;
    }
    const QVector<StreamFacts> facts = factsOf(*view->format).mid(0, m_facts.size());
    if (facts != m_facts) {
        m_errorText = QCoreApplication::translate("QtAV::AVDemuxer",
                                                  "The file was overwritten by another program.");
        return false;
    }
    // The old context reads from the old stream until it is destroyed.
    m_view.format = std::move(view->format);
    m_view.stream = std::move(view->stream);
    m_format = m_view.format.get();
    setMissingTimes(m_missingTimes);
    return true;
}

qint64 Container::remainingBytes()
{
    const qint64 size = m_input->size();
    return size < 0 ? 0 : std::max<qint64>(0, size - avio_tell(m_format->pb));
}

qint64 Container::statedDuration() const
{
    const bool isGuess = m_format->duration_estimation_method == AVFMT_DURATION_FROM_BITRATE;
    if (m_format->duration == AV_NOPTS_VALUE || isGuess) {
        return 0;
    }
    return std::clamp<qint64>(m_format->duration / (AV_TIME_BASE / 1000), 0, Timeline::longestMs);
}

bool Container::durationIsMeasured() const
{
    return m_format->duration_estimation_method == AVFMT_DURATION_FROM_PTS;
}

} // namespace QtAV
