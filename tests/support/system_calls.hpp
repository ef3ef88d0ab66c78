// Runs code in a child whose system calls are counted: the child is killed at one of them, or that
// one is refused.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <optional>
#include <set>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

/// What befalls the child at the system call.
enum class Fault { killed, refused };

namespace detail {

#ifdef __x86_64__
inline constexpr bool canRefuse = true;

/// Whether the call is about files: those are refused.
inline bool isAboutFiles(unsigned long long call) {
    static const std::set<unsigned long long> calls{
        SYS_open,      SYS_openat,    SYS_read,       SYS_write,      SYS_close,    SYS_rename,
        SYS_renameat,  SYS_renameat2, SYS_mkdir,      SYS_mkdirat,    SYS_symlink,  SYS_symlinkat,
        SYS_unlink,    SYS_unlinkat,  SYS_rmdir,      SYS_chmod,      SYS_fchmodat, SYS_lchown,
        SYS_utimensat, SYS_lstat,     SYS_newfstatat, SYS_getdents64, SYS_readlink};
    return calls.contains(call);
}

/// At the entry of a call: lets it not take place, and fail for want of room.
inline void refuse(pid_t child) {
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    registers.orig_rax = static_cast<unsigned long long>(-1);
    ptrace(PTRACE_SETREGS, child, nullptr, &registers);
    int status = 0;
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    registers.rax = static_cast<unsigned long long>(-ENOSPC);
    ptrace(PTRACE_SETREGS, child, nullptr, &registers);
}

inline bool isAtFileCall(pid_t child) {
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    return isAboutFiles(registers.orig_rax);
}
#else
inline constexpr bool canRefuse = false;
inline void refuse(pid_t) {}
inline bool isAtFileCall(pid_t) { return true; }
#endif

/// Lets the child run to its next entry into a call about files; false when it ends before.
inline bool runToCall(pid_t child, int& status) {
    for (bool entering = true;; entering = !entering) {
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) {
            return false;
        }
        if (entering && isAtFileCall(child)) {
            return true;
        }
    }
}

} // namespace detail

/// Calls `body` in a child, to which `fault` happens at its call number `place` (from 0) about
/// files. Nothing when the child makes fewer calls: it has ended by itself.
template <class Body>
std::optional<int> withFault(int place, Fault fault, Body body) {
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        body();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    bool runs = true;
    for (int call = 0; runs && call <= place; ++call) {
        runs = detail::runToCall(child, status);
        if (runs && call < place) { // past the exit of this one
            ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
            waitpid(child, &status, 0);
        }
    }
    if (!runs) {
        EXPECT_TRUE(WIFEXITED(status));
        return std::nullopt;
    }
    if (fault == Fault::killed) {
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
    } else {
        detail::refuse(child);
        ptrace(PTRACE_DETACH, child, nullptr, nullptr);
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
    }
    return status;
}

} // namespace support
