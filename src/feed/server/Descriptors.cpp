#include "feed/server/Descriptors.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <sys/resource.h>

namespace zantroq::feed {
namespace {

// Two clients may be accepted, one on each port, before the next look.
constexpr rlim_t AcceptedAtOnce = 2;
constexpr rlim_t BlockSize = 1024;

// Of the descriptors from `first` to `end` - 1, at most BlockSize. A poll needs no descriptor of its own.
rlim_t CountFree(rlim_t first, rlim_t end)
{
    std::array<pollfd, BlockSize> states{};
    const rlim_t count = end - first;
    for (rlim_t i = 0; i < count; ++i)
        states[i].fd = static_cast<int>(first + i);
    if (poll(states.data(), count, 0) < 0)
        return count;
    return static_cast<rlim_t>(
        std::count_if(states.begin(), states.begin() + static_cast<std::ptrdiff_t>(count),
                      [](const pollfd& state) { return (state.revents & POLLNVAL) != 0; }));
}

} // namespace

bool IsShortOfDescriptors()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return false;
    const rlim_t kept = std::min<rlim_t>(16, limit.rlim_cur / 8) + AcceptedAtOnce;
    // The lowest free descriptors are given out first, so that the answer is most often in the highest block.
    rlim_t free = 0;
    for (rlim_t end = limit.rlim_cur; end > 0 && free < kept; end -= std::min(end, BlockSize))
        free += CountFree(end - std::min(end, BlockSize), end);
    return free < kept;
}

} // namespace zantroq::feed
