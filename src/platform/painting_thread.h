#pragma once

namespace quarvel {

/// Makes sure that painting always ends. The toolkit shares large fills among the threads of its pool, and
/// waits for ever for one that the system could not start, as when memory runs short. One thread is started
/// now, while there is memory, and kept; the pool starts no other. Returns whether that thread runs: painting
/// is not safe without it.
[[nodiscard]] bool keepPaintingThread();

} // namespace quarvel
