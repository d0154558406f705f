#pragma once

// Marks a loop that is compiled for several processors; the best version is chosen when the program
// starts. That choice is made too early for the sanitizers.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) &&                             \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define FOR_SEVERAL_PROCESSORS __attribute__((target_clones("avx2", "ssse3", "default")))
#else
#define FOR_SEVERAL_PROCESSORS
#endif
