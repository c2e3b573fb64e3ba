// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <iterator>
#if defined(__x86_64__)
#include <sys/user.h>
#endif

namespace nautrel {

/// What meets another process at one of its calls of the system that change files.
enum class Meets { Death, FullDisk };

// The address sanitizer makes calls of its own, which must not fail.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)
inline constexpr bool kCallsCanFail = true;
#else
inline constexpr bool kCallsCanFail = false;
#endif

/// While it lives, test folders stand in memory where the system offers that: it is the order of
/// the calls that counts, and on a disk a thousand syncs would take their time.
class MemoryFolders {
 public:
  MemoryFolders() {
    if (access("/dev/shm", W_OK) == 0) setenv("TMPDIR", "/dev/shm", 1);
  }
  ~MemoryFolders() { unsetenv("TMPDIR"); }
  MemoryFolders(const MemoryFolders&) = delete;
  MemoryFolders& operator=(const MemoryFolders&) = delete;
};

/// Runs a piece of the program in another process and lets it meet its fate at the n-th such call,
/// from 1: it dies before it, or the call alone finds no room.
class AtCall {
 public:
  AtCall(int call, Meets fate, const std::function<int()>& work) : left_(call), fate_(fate) {
    process_ = fork();
    if (process_ == 0) {
      if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(kNotTraced);
      ::raise(SIGSTOP);
      _exit(work());
    }
    waitpid(process_, &status_, 0);
    if (!WIFSTOPPED(status_)) return;
    ptrace(PTRACE_SETOPTIONS, process_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    while (WIFSTOPPED(status_)) step();
  }

  /// Whether there was such a call.
  bool reached() const { return left_ <= 0; }
  /// What the work returned; -1 after its death.
  int result() const { return WIFEXITED(status_) ? WEXITSTATUS(status_) : -1; }

  /// Some machines let no process watch another.
  static bool isPossible() {
    return AtCall(1, Meets::Death, [] { return 0; }).result() == 0;
  }

 private:
  static constexpr int kNotTraced = 125;

  static bool changesFiles(std::uint64_t call) {
    constexpr std::uint64_t kCalls[] = {
#if defined(SYS_open)
      SYS_open,
      SYS_rename,
      SYS_link,
      SYS_unlink,
      SYS_chmod,
      SYS_chown,
      SYS_creat,
#endif
      SYS_write,
      SYS_pwrite64,
      SYS_openat,
      SYS_renameat2,
      SYS_linkat,
      SYS_unlinkat,
      SYS_ftruncate,
      SYS_fallocate,
      SYS_fsync,
      SYS_fdatasync,
      SYS_fchmodat,
      SYS_fchownat,
      SYS_sendfile,
      SYS_copy_file_range
    };
    return std::find(std::begin(kCalls), std::end(kCalls), call) != std::end(kCalls);
  }

  void step() {
    int signal = WSTOPSIG(status_);
    if (signal == (SIGTRAP | 0x80)) atCall();
    if (signal == (SIGTRAP | 0x80) || signal == SIGSTOP || signal == SIGTRAP) signal = 0;
    ptrace(PTRACE_SYSCALL, process_, nullptr, signal);
    waitpid(process_, &status_, 0);
  }

  void atCall() {
    __ptrace_syscall_info info{};
    ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof info, &info);
    if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
      if (!changesFiles(info.entry.nr) || --left_ != 0) return;
      if (fate_ == Meets::Death)
        kill(process_, SIGKILL);
      else
        setRegister(true);
      failing_ = fate_ == Meets::FullDisk;
    } else if (failing_) {
      setRegister(false);
      failing_ = false;
    }
  }

  /// Keeps the call from being made, and tells its answer.
  void setRegister([[maybe_unused]] bool entry) {
#if defined(__x86_64__)
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, process_, nullptr, &registers);
    (entry ? registers.orig_rax : registers.rax) =
        static_cast<unsigned long long>(entry ? -1LL : -static_cast<long long>(ENOSPC));
    ptrace(PTRACE_SETREGS, process_, nullptr, &registers);
#endif
  }

  int left_;
  Meets fate_;
  pid_t process_ = 0;
  int status_ = 0;
  bool failing_ = false;
};

}  // namespace nautrel
