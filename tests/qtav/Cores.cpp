#include "tests/qtav/Cores.h"

extern "C" {
#include <libavutil/cpu.h>
}

namespace decoding {

PretendedCores::PretendedCores(int cores)
{
    av_cpu_force_count(cores);
}

PretendedCores::~PretendedCores()
{
    av_cpu_force_count(0);
}

} // namespace decoding
