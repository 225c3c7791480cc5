// Runs something in a separate process.
#pragma once

#include <csignal>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace zantroq::test {

// An ordinary user, in case the tests run as a privileged user.
inline constexpr unsigned OrdinaryUser = 65534;

// Forks a child; `body` must not use the test framework. Its result is the exit code.
inline pid_t StartChild(const std::function<int()>& body)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    return child;
}

// The exit code; 1000 + the signal if one ended the process.
inline int WaitFor(pid_t child)
{
    int status = 0;
    if (::waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

// Runs `body` as an ordinary user, to whom file permissions apply.
inline int AsOrdinaryUser(const std::function<int()>& body)
{
    return WaitFor(StartChild([&] {
        if (::geteuid() == 0 && (::setgid(OrdinaryUser) != 0 || ::setuid(OrdinaryUser) != 0))
            return 99;
        return body();
    }));
}

} // namespace zantroq::test
