#include "EndSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace zantroq {
namespace {

std::atomic<bool> HasCome = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler writes it");

int Pipe[2] = {-1, -1}; // read, write

void OnEndSignal(int)
{
    const int before = errno;
    HasCome = true;
    // A full pipe wakes the loop too.
    [[maybe_unused]] const ssize_t written = ::write(Pipe[1], "", 1);
    errno = before;
}

bool IsIgnored(int signal)
{
    struct sigaction now
    {
    };
    return ::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

} // namespace

void CatchEndSignals()
{
    if (::pipe2(Pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    struct sigaction action
    {
    };
    action.sa_handler = OnEndSignal;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(SIGTERM, &action, nullptr);
    ::sigaction(SIGINT, &action, nullptr);
    if (!IsIgnored(SIGHUP))
        ::sigaction(SIGHUP, &action, nullptr);
}

bool EndAsked()
{
    return HasCome;
}

CEndSignals::CEndSignals()
{
    if (Pipe[0] < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(Pipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        emit Asked();
    });
}

} // namespace zantroq
