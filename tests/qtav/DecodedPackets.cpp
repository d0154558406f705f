#include "tests/qtav/DecodedPackets.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <dlfcn.h>
#include <map>
#include <mutex>
#include <numeric>

namespace {

struct Counters
{
    std::mutex mutex;
    std::map<qint64, int> byTime; ///< guarded by mutex
};

Counters& counters()
{
    static Counters all;
    return all;
}

} // namespace

// Found before the library's own function of this name, which it calls.
extern "C" int avcodec_send_packet(AVCodecContext* context, const AVPacket* packet)
{
    using Function = int (*)(AVCodecContext*, const AVPacket*);
    static const auto libraryFunction =
        reinterpret_cast<Function>(dlsym(RTLD_NEXT, "avcodec_send_packet"));
    if (packet) {
        const std::lock_guard lock(counters().mutex);
        ++counters().byTime[packet->pts];
    }
    return libraryFunction(context, packet);
}

int decoding::DecodedPackets::total() const
{
    return std::accumulate(counts.cbegin(), counts.cend(), 0);
}

decoding::DecodedPackets decoding::takeDecodedPackets()
{
    DecodedPackets taken;
    const std::lock_guard lock(counters().mutex);
    for (const auto& [time, count] : counters().byTime) {
        taken.times.append(time);
        taken.counts.append(count);
    }
    counters().byTime.clear();
    return taken;
}
