// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <functional>
#include <map>
#include <vector>

namespace chronomender::little {

/// A copy of this process, made by fork, that carries out `work` and is killed at the n-th entry or
/// exit of a system call, of all its threads together. Programs that it has started are not
/// watched; their end is waited for.
class KilledChild {
public:
    enum class End { Killed, Finished, Crashed, NotPermitted };

    static constexpr long anyCall = -1;
    /// With `onlyCall`, entries and exits of that system call alone are counted.
    explicit KilledChild(std::function<void()> work, long onlyCall = anyCall)
        : m_work(std::move(work)), m_onlyCall(onlyCall) {}

    /// `n` from 1; 0 lets it finish. Returns when nothing of the child is left.
    End run(int n) {
        std::fflush(nullptr);
        ::prctl(PR_SET_CHILD_SUBREAPER, 1); // what the child has started ends up with us
        m_pid = ::fork();
        if (m_pid == 0)
            beChild();
        int status = 0;
        if (::waitpid(m_pid, &status, 0) != m_pid || !WIFSTOPPED(status))
            return End::NotPermitted;
        ptrace(PTRACE_SETOPTIONS, m_pid, nullptr,
               PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE | PTRACE_O_TRACEEXEC |
                   PTRACE_O_EXITKILL);
        goOn(m_pid, 0);
        const End end = follow(n);
        while (::waitpid(-1, nullptr, __WALL) > 0)
            ;
        return end;
    }
    /// System calls of the work, as the last run that finished made them.
    int systemCalls() const { return m_stops / 2; }

private:
    [[noreturn]] void beChild() {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(1);
        ::raise(SIGSTOP);
        ::syscall(SYS_getppid); // the mark that the work begins
        m_work();
        ::_exit(0);
    }
    void goOn(pid_t thread, int signal) { ptrace(PTRACE_SYSCALL, thread, nullptr, signal); }

    End follow(int n) {
        m_stops = 0;
        m_calls.clear();
        bool hasBegun = false, isKilled = false;
        for (;;) {
            int status = 0;
            const pid_t thread = ::waitpid(-1, &status, __WALL);
            if (thread < 0)
                return End::Crashed;
            if (!WIFSTOPPED(status)) {
                if (thread != m_pid)
                    continue;
                return isKilled                                        ? End::Killed
                       : WIFEXITED(status) && WEXITSTATUS(status) == 0 ? End::Finished
                                                                       : End::Crashed;
            }
            const bool isSystemCall = WSTOPSIG(status) == (SIGTRAP | 0x80);
            const long entered = isSystemCall ? systemCall(thread) : -1;
            long &call = m_calls[thread];
            if (entered != anyCall)
                call = entered;
            const bool isCounted = hasBegun && isSystemCall && call != SYS_exit_group &&
                                   (m_onlyCall == anyCall || call == m_onlyCall);
            if (isCounted && ++m_stops == n) {
                isKilled = true;
                ::kill(m_pid, SIGKILL);
                continue;
            }
            hasBegun = hasBegun || entered == SYS_getppid;
            const bool isSignal = !isSystemCall && status >> 16 == 0 && WSTOPSIG(status) != SIGSTOP;
            goOn(thread, isSignal ? WSTOPSIG(status) : 0);
        }
    }
    /// The number of the call that the thread is about to enter; −1 at its exit.
    static long systemCall(pid_t thread) {
        __ptrace_syscall_info info{};
        ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof info, &info);
        return info.op == PTRACE_SYSCALL_INFO_ENTRY ? static_cast<long>(info.entry.nr) : -1;
    }

    std::function<void()> m_work;
    long m_onlyCall;
    std::map<pid_t, long> m_calls; ///< what each thread has entered last
    pid_t m_pid = -1;
    int m_stops = 0;
};

} // namespace chronomender::little
