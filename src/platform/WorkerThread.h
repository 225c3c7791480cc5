// A thread with an event loop: it runs posted functions and socket notifications in order until it is
// stopped. Derived classes do their set-up and clean-up on the thread itself.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace zantroq {

class CWorkerThread
{
public:
    CWorkerThread();
    CWorkerThread(const CWorkerThread&) = delete;
    CWorkerThread& operator=(const CWorkerThread&) = delete;
    // A derived class must call Stop before its own members are destroyed.
    virtual ~CWorkerThread();

    // Starts the thread. Once per object.
    void Start();

    // Ends the loop and waits until the thread has ended; repeats the request every second meanwhile. Returns
    // at once if the thread was never started. Must not be called on the thread itself.
    void Stop();

    // Runs `work` on the thread, after the work already posted. Any thread.
    void Post(std::function<void()> work);

    // Posts a numbered message; the thread passes it to OnThreadMessage. Any thread.
    void PostThreadMessage(std::uint32_t message, std::int32_t first, std::int32_t second);

protected:
    // Called on the new thread, before and after the loop.
    virtual void InitInstance() {}
    virtual void ExitInstance() {}
    virtual void OnThreadMessage(std::uint32_t message, std::int32_t first, std::int32_t second);

private:
    friend class CAsyncSocket;
    struct sLoop;

    void Run();

    const std::unique_ptr<sLoop> m_loop;
};

} // namespace zantroq
