// The entry point of the module that the program loads once there is work.

#include "stills/StillsModule.h"
#include "stills/StillsRun.h"

extern "C" __attribute__((visibility("default"))) int
morvantile_run_stills(const stills::Options& options)
{
    return stills::run(options);
}
