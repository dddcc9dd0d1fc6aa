#pragma once

#include <cstddef>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace qor {

/// Bytes of the heap that are in use, as the allocator counts them; 0 where it can't be asked.
inline std::size_t heapInUse() {
#if defined(__GLIBC__)
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
#else
  return 0;
#endif
}

}  // namespace qor
