#pragma once

/// How the process handles freed memory.
namespace MemoryPolicy {

/// Returns large freed blocks of memory to the system at once, for the whole process. Otherwise the
/// C library keeps the memory of decoded pictures separately for each decoding thread, which after
/// some videos takes as much as another decoder. For programs that play, and for pictures of one
/// video; call it at the start. Does nothing if the C library does not support it.
///
/// @param largeBytes  minimum size of such a block
void returnFreedMemory(int largeBytes = 1 << 20);

/// The opposite: keeps freed memory, up to a gigabyte, for the next block of the same kind. For
/// pictures of many videos: their frames are allocated and freed in the same sizes, and fresh
/// memory for each video would cost a fifth of the time of short ones.
void keepFreedMemory();

} // namespace MemoryPolicy
