// How long a piece of work may keep the feed's thread. All clients share that thread, so whatever may take
// longer than a few microseconds is written as steps: do one step, ask the slice, return with the state kept
// when it is over, and go on from there at the next call. At least one step is thus done in every slice.
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>

namespace zantroq::feed {

// What a piece of work reports when it returns.
enum class WorkProgress
{
    Ended,  // nothing is left to do
    More,   // call again for the rest
    Waiting // nothing can be done until something else has happened (a recording has been read)
};

class CWorkSlice
{
public:
    using TClock = std::chrono::steady_clock;
    // Reading the clock costs as much as half a reply line, so it is read once for so many steps.
    static constexpr std::uint32_t StepsPerLook = 64;
    // The size of a step that may take a large part of a millisecond, such as the ticks of a simulated day.
    static constexpr std::uint32_t LargeStep = StepsPerLook;

    // Ends at that time.
    explicit CWorkSlice(TClock::time_point end) : m_end(end) {}
    // Never ends: for callers that do the whole work at once.
    static CWorkSlice Unlimited() { return CWorkSlice(TClock::time_point::max()); }
    // Ends after so many steps, whatever their size: for tests that need the same cuts in every run.
    static CWorkSlice OfSteps(std::uint32_t steps)
    {
        CWorkSlice slice = Unlimited();
        slice.m_stepsLeft = steps;
        return slice;
    }

    // Called after each step; true once the work has to return. `size` is 1 for a step of at most some ten
    // microseconds.
    bool IsOver(std::uint32_t size = 1)
    {
        if (m_stepsLeft != NoStepLimit)
            return m_over = m_over || --m_stepsLeft == 0;
        m_steps += size;
        if (m_steps >= StepsPerLook) {
            m_steps = 0;
            m_over = m_over || TClock::now() >= m_end;
        }
        return m_over;
    }

private:
    static constexpr std::uint32_t NoStepLimit = std::numeric_limits<std::uint32_t>::max();

    TClock::time_point m_end;
    std::uint32_t m_steps = 0;
    std::uint32_t m_stepsLeft = NoStepLimit;
    bool m_over = false;
};

} // namespace zantroq::feed
