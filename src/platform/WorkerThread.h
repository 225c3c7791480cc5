// One thread with a loop of its own: it runs posted functions and socket notifications in the order in which
// they fall due, until it is told to quit. Derived classes set up and tear down on the thread itself.
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
    // The thread must have ended: a derived class stops it before its own members go.
    virtual ~CWorkerThread();

    // Begins the thread. Once per object.
    void Start();

    // Ends the loop and waits until the thread has ended, in spans of a second after each of which it asks
    // again. Returns at once when the thread was never begun. Not to be called on the thread itself.
    void Stop();

    // Runs `work` on the thread, after what is already due. Any thread.
    void Post(std::function<void()> work);

    // Posts a numbered message to OnThreadMessage. Any thread.
    void PostThreadMessage(std::uint32_t message, std::int32_t first, std::int32_t second);

protected:
    // On the new thread, before and after the loop.
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
