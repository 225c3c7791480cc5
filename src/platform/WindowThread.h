// How a worker hands its results to the window's thread.
#pragma once

#include <functional>

namespace zantroq {

class IWindowThread
{
public:
    virtual ~IWindowThread() = default;
    // Runs `work` on the window's thread after what is due there already, never inside this call. Any thread;
    // work that has not run when this object goes is dropped.
    virtual void Post(std::function<void()> work) = 0;
};

} // namespace zantroq
