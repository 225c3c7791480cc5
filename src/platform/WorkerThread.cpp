#include "platform/WorkerThread.h"

#include "platform/WorkerLoop.h"

#include <asio/post.hpp>
#include <chrono>
#include <utility>

namespace zantroq {

CWorkerThread::CWorkerThread() : m_loop(std::make_unique<sLoop>()) {}

CWorkerThread::~CWorkerThread()
{
    Stop();
}

void CWorkerThread::Start()
{
    m_loop->Thread = std::thread([this] { Run(); });
}

void CWorkerThread::Run()
{
    InitInstance();
    m_loop->Context.run();
    ExitInstance();
    m_loop->Ended.set_value();
}

void CWorkerThread::Stop()
{
    if (!m_loop->Thread.joinable())
        return;
    std::future<void> ended = m_loop->Ended.get_future();
    do {
        Post([this] { m_loop->Context.stop(); });
    } while (ended.wait_for(std::chrono::milliseconds(1000)) != std::future_status::ready);
    m_loop->Thread.join();
}

void CWorkerThread::Post(std::function<void()> work)
{
    asio::post(m_loop->Context, std::move(work));
}

void CWorkerThread::PostThreadMessage(std::uint32_t message, std::int32_t first, std::int32_t second)
{
    Post([this, message, first, second] { OnThreadMessage(message, first, second); });
}

void CWorkerThread::OnThreadMessage(std::uint32_t, std::int32_t, std::int32_t) {}

} // namespace zantroq
