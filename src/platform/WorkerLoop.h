// The event loop of CWorkerThread, for the sources of this folder that post work to it.
#pragma once

#include "platform/WorkerThread.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <future>
#include <thread>

namespace zantroq {

struct CWorkerThread::sLoop
{
    asio::io_context Context{1};
    asio::executor_work_guard<asio::io_context::executor_type> Work = asio::make_work_guard(Context);
    std::promise<void> Ended;
    std::thread Thread;
};

} // namespace zantroq
