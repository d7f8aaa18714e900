#pragma once

#include <time.h>

namespace bench {

/// The time that this thread has had of a processor, seconds: what else runs on the machine does not count.
inline double ThreadSeconds() {
  timespec now{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

}  // namespace bench
