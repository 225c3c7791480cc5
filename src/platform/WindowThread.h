// Passes results of a worker to the window's thread.
#pragma once

#include <functional>

namespace zantroq {

class IWindowThread
{
public:
    virtual ~IWindowThread() = default;
    // Runs `work` on the window's thread, after the work already posted and never inside this call. Any
    // thread. Work that has not run when this object is destroyed is dropped.
    virtual void Post(std::function<void()> work) = 0;
};

} // namespace zantroq
