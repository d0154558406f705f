// Decodes what a series of positions needs, and does nothing with it, for comparison:
//
//   decode_alone VIDEO LANES MILLISECONDS…
//
// The positions must rise. Each lane is a thread with an input and a single-threaded decoder of its
// own, for its share of the positions. It seeks to a key frame if one lies between two positions,
// decodes each frame at most once, and skips disposable frames that are not requested.

#include "bench/bare/Handles.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace {

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

class Lane
{
public:
    explicit Lane(const char* path)
    {
        AVFormatContext* input = nullptr;
        if (avformat_open_input(&input, path, nullptr, nullptr) < 0) {
            fail("cannot open the video");
        }
        m_input.reset(input);
        const int stream = av_find_best_stream(input, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
        if (stream < 0) {
            fail("no video");
        }
        m_stream = input->streams[stream];
        const AVCodec* const codec = avcodec_find_decoder(m_stream->codecpar->codec_id);
        m_decoder.reset(avcodec_alloc_context3(codec));
        avcodec_parameters_to_context(m_decoder.get(), m_stream->codecpar);
        m_decoder->thread_count = 1;
        if (avcodec_open2(m_decoder.get(), codec, nullptr) < 0) {
            fail("cannot decode the video");
        }
    }

    /// The first frame at or after a position in milliseconds.
    void take(std::int64_t ms)
    {
        const std::int64_t wanted = av_rescale_q(ms, {1, 1000}, m_stream->time_base);
        if (!m_hasBegun || keyFrameBefore(wanted) > m_decoded) {
            av_seek_frame(m_input.get(), m_stream->index, wanted, AVSEEK_FLAG_BACKWARD);
            avcodec_flush_buffers(m_decoder.get());
            m_hasBegun = true;
            m_shown = INT64_MIN;
        }
        while (m_shown < wanted && readInto(wanted)) {
        }
    }

private:
    std::int64_t keyFrameBefore(std::int64_t time) const
    {
        const AVIndexEntry* const entry =
            avformat_index_get_entry_from_timestamp(m_stream, time, AVSEEK_FLAG_BACKWARD);
        return entry != nullptr ? entry->timestamp : INT64_MIN;
    }

    bool readInto(std::int64_t wanted)
    {
        if (av_read_frame(m_input.get(), m_packet.get()) < 0) {
            return false;
        }
        if (m_packet->stream_index == m_stream->index) {
            m_decoder->skip_frame = m_packet->pts < wanted ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
            m_decoded = m_packet->dts;
            avcodec_send_packet(m_decoder.get(), m_packet.get());
            while (avcodec_receive_frame(m_decoder.get(), m_frame.get()) == 0) {
                m_shown = m_frame->pts;
            }
        }
        av_packet_unref(m_packet.get());
        return true;
    }

    bench::InputPtr m_input;
    bench::CodecPtr m_decoder;
    bench::PacketPtr m_packet{av_packet_alloc()};
    bench::FramePtr m_frame{av_frame_alloc()};
    AVStream* m_stream = nullptr;
    bool m_hasBegun = false;
    std::int64_t m_decoded = INT64_MIN;
    std::int64_t m_shown = INT64_MIN;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        fail("decode_alone VIDEO LANES MILLISECONDS…");
    }
    const std::vector<std::string> words(argv + 3, argv + argc);
    const std::size_t lanes = std::stoul(argv[2]);
    std::vector<std::thread> threads;
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        threads.emplace_back([&, lane] {
            Lane own(argv[1]);
            for (std::size_t i = lane * words.size() / lanes; i < (lane + 1) * words.size() / lanes;
                 ++i) {
                own.take(std::stoll(words[i]));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    return 0;
}
