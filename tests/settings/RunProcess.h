// Runs something in a process of its own.
#pragma once

#include <csignal>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace zantroq::test {

// An ordinary user, where the tests themselves run as one who may do anything.
inline constexpr unsigned OrdinaryUser = 65534;

// A forked child; body must not touch the test framework. Its answer is the exit code.
inline pid_t StartChild(const std::function<int()>& body)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    return child;
}

// The exit code; 1000 + the signal where one ended it.
inline int WaitFor(pid_t child)
{
    int status = 0;
    if (::waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

// Runs body as an ordinary user; all permissions count for it.
inline int AsOrdinaryUser(const std::function<int()>& body)
{
    return WaitFor(StartChild([&] {
        if (::geteuid() == 0 && (::setgid(OrdinaryUser) != 0 || ::setuid(OrdinaryUser) != 0))
            return 99;
        return body();
    }));
}

} // namespace zantroq::test
