#include "decodificador/Encierro.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <linux/landlock.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <string>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#ifdef __clang__
#pragma clang diagnostic ignored "-Wc99-extensions"  // the filter library's macros
#endif

namespace pixmosa {
namespace {

constexpr rlim_t kMemoria = rlim_t{2} << 30;
constexpr rlim_t kArchivos = 64;

constexpr std::uint64_t kLeer = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t kTodo =
    kLeer | LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
    LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR |
    LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
    LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

// What computing, memory, its own threads (which libraries wake by pipes) and reading open files need.
constexpr const char* kPermitidas[] = {"access",
                                       "arch_prctl",
                                       "brk",
                                       "clock_getres",
                                       "clock_gettime",
                                       "clock_nanosleep",
                                       "close",
                                       "dup",
                                       "eventfd2",
                                       "exit",
                                       "exit_group",
                                       "fadvise64",
                                       "faccessat",
                                       "faccessat2",
                                       "fcntl",
                                       "fstat",
                                       "fstatfs",
                                       "futex",
                                       "getcwd",
                                       "getdents64",
                                       "getegid",
                                       "geteuid",
                                       "getgid",
                                       "getpid",
                                       "getrandom",
                                       "getrlimit",
                                       "gettid",
                                       "gettimeofday",
                                       "getuid",
                                       "lseek",
                                       "lstat",
                                       "madvise",
                                       "membarrier",
                                       "mmap",
                                       "mprotect",
                                       "mremap",
                                       "munmap",
                                       "nanosleep",
                                       "newfstatat",
                                       "pipe2",
                                       "poll",
                                       "pread64",
                                       "prlimit64",
                                       "read",
                                       "readlink",
                                       "readlinkat",
                                       "readv",
                                       "restart_syscall",
                                       "rseq",
                                       "rt_sigaction",
                                       "rt_sigprocmask",
                                       "rt_sigreturn",
                                       "sched_getaffinity",
                                       "sched_yield",
                                       "set_robust_list",
                                       "sigaltstack",
                                       "stat",
                                       "statfs",
                                       "statx",
                                       "sysinfo",
                                       "uname",
                                       "write",
                                       "writev"};

class Descriptor {
 public:
  explicit Descriptor(long fd) : fd_(static_cast<int>(fd)) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Numero() const { return fd_; }
  bool Abierto() const { return fd_ >= 0; }

 private:
  int fd_;
};

// Leaves only these folders readable. False where the kernel has no such rule.
bool SoloCarpetas(const std::vector<std::filesystem::path>& folders) {
  landlock_ruleset_attr all{};
  all.handled_access_fs = kTodo;
  const Descriptor rules(::syscall(SYS_landlock_create_ruleset, &all, sizeof all, 0));
  if (!rules.Abierto()) return false;
  for (const std::filesystem::path& folder : folders) {
    const Descriptor at(::open(folder.c_str(), O_PATH | O_CLOEXEC | O_DIRECTORY));
    if (!at.Abierto()) continue;  // not every machine has each of them
    landlock_path_beneath_attr rule{};
    rule.allowed_access = kLeer;
    rule.parent_fd = at.Numero();
    if (::syscall(SYS_landlock_add_rule, rules.Numero(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0)
      return false;
  }
  return ::syscall(SYS_landlock_restrict_self, rules.Numero(), 0) == 0;
}

bool Permitir(scmp_filter_ctx filter, bool reading) {
  // A system call that this machine's kind does not have needs no rule.
  const auto allow = [&](const char* name, auto... conditions) {
    const int number = seccomp_syscall_resolve_name(name);
    if (number == __NR_SCMP_ERROR) return true;
    const int error = seccomp_rule_add(filter, SCMP_ACT_ALLOW, number, sizeof...(conditions), conditions...);
    return error == 0 || error == -EDOM;
  };
  bool done = true;
  for (const char* name : kPermitidas) done = allow(name) && done;
  if (reading) {
    constexpr scmp_datum_t kEscribe = O_ACCMODE | O_CREAT | O_TRUNC;
    done = allow("open", SCMP_A1(SCMP_CMP_MASKED_EQ, kEscribe, O_RDONLY)) && done;
    done = allow("openat", SCMP_A2(SCMP_CMP_MASKED_EQ, kEscribe, O_RDONLY)) && done;
  }
  // Threads but no processes; the newer call hides its flags behind a pointer, so the older one is asked for.
  done = allow("clone", SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD)) && done;
  return done && seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
}

}  // namespace

bool Limitar(unsigned seconds) {
  const auto limit = [](auto what, rlim_t soft, rlim_t hard) {
    rlimit l{};
    if (::getrlimit(what, &l) != 0) return false;
    l.rlim_max = std::min(l.rlim_max, hard);
    l.rlim_cur = std::min({l.rlim_cur, l.rlim_max, soft});
    return ::setrlimit(what, &l) == 0;
  };
  ::signal(SIGXFSZ, SIG_IGN);  // a write that is refused need not end the process
  // The soft limit of processor time ends with its own signal, which tells the client why.
  return limit(RLIMIT_CPU, seconds, rlim_t{seconds} + 1) && limit(RLIMIT_AS, kMemoria, kMemoria) &&
         limit(RLIMIT_FSIZE, 0, 0) && limit(RLIMIT_NOFILE, kArchivos, kArchivos) &&
         limit(RLIMIT_CORE, 0, 0) && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0;
}

Muros Encerrar(const std::vector<std::filesystem::path>& carpetas) {
  const bool reading = SoloCarpetas(carpetas);
  const std::unique_ptr<void, void (*)(void*)> filter(seccomp_init(SCMP_ACT_ERRNO(EACCES)), seccomp_release);
  if (!filter || !Permitir(filter.get(), reading) || seccomp_load(filter.get()) != 0) return Muros::Ninguno;
  return reading ? Muros::Enteros : Muros::SinCarpetas;
}

std::vector<std::filesystem::path> CarpetasDeLetras() {
  using std::filesystem::path;
  std::vector<path> folders = {
      "/usr/share/fonts", "/usr/local/share/fonts", "/usr/share/fontconfig", "/usr/share/libwmf",
      "/etc/fonts",       "/var/cache/fontconfig"};
  const auto of = [](const char* name) {
    const char* value = std::getenv(name);
    return path(value ? value : "");
  };
  // The user's own: $XDG_x_HOME/part, or the place below the home folder where that is not set.
  const path home = of("HOME");
  const auto own = [&](const char* name, const char* usual, const char* part) {
    const path folder = of(name);
    if (!folder.empty() || !home.empty()) folders.push_back((folder.empty() ? home / usual : folder) / part);
  };
  own("XDG_DATA_HOME", ".local/share", "fonts");
  own("XDG_CONFIG_HOME", ".config", "fontconfig");
  own("XDG_CACHE_HOME", ".cache", "fontconfig");
  if (!home.empty()) folders.push_back(home / ".fonts");
  return folders;
}

}  // namespace pixmosa
