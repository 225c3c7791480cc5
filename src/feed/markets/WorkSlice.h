// Limits how long a piece of work may keep the feed's thread. All clients share that thread, so work that may
// take longer than a few microseconds is divided into steps: it does a step, asks the slice whether it is
// over, and if so returns and continues at the next call. Every slice thus does at least one step.
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>

namespace zantroq::feed {

// What a piece of work reports when it returns.
enum class WorkProgress
{           // no work is left
    Ended,  // call again for the rest
    More,   // nothing can be done until something else has happened, such as the reading of a recording
    Waiting // nothing can be done until something else has happened (a recording has been read)
};

class CWorkSlice
{
public:
    using TClock = std::chrono::steady_clock;
    // Reading the clock costs as much as half a reply line, so it is read once in so many steps.
    static constexpr std::uint32_t StepsPerLook = 64;
    // The size of a step that may take a large part of a millisecond, such as generating the ticks of a
    // simulated day.
    static constexpr std::uint32_t LargeStep = StepsPerLook;

    // A slice that ends at the time `end`.
    explicit CWorkSlice(TClock::time_point end) : m_end(end) {}
    // A slice that never ends, for callers that do all the work at once.
    static CWorkSlice Unlimited() { return CWorkSlice(TClock::time_point::max()); }
    // A slice that ends after so many steps, whatever their size, for tests that need the same interruptions
    // in every run.
    static CWorkSlice OfSteps(std::uint32_t steps)
    {
        CWorkSlice slice = Unlimited();
        slice.m_stepsLeft = steps;
        return slice;
    }

    // Must be called after each step. Returns true if the work has to return now. `size` is 1 for a step of
    // at most some ten microseconds.
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
