// What the walls hold back, tried from inside a child.
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <seccomp.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "decodificador/Encierro.h"
#include "platform/AtomicFile.h"
#include "platform/decodificador/Cliente.h"
#include "tests/support/Metafile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

namespace {

// 0 where everything is as it should be, otherwise the number of what is not.
int Inside(const std::string& allowed, const std::string& forbidden) {
  if (!Limitar()) return 1;
  if (Encerrar({std::filesystem::path(allowed).parent_path(), "/no-existe"}) != Muros::Enteros) return 2;
  if (::open(allowed.c_str(), O_RDONLY) < 0) return 3;
  if (::open(forbidden.c_str(), O_RDONLY) >= 0) return 4;
  if (::open(allowed.c_str(), O_WRONLY) >= 0 || ::open(allowed.c_str(), O_RDONLY | O_TRUNC) >= 0) return 5;
  if (::open((allowed + "2").c_str(), O_RDONLY | O_CREAT, 0600) >= 0 || ::unlink(allowed.c_str()) == 0)
    return 6;
  if (::socket(AF_INET, SOCK_STREAM, 0) >= 0 || ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0) return 7;
  if (::fork() >= 0) return 8;
  char* none[] = {nullptr};
  if (::execve("/bin/true", none, none) == 0 || errno != EACCES) return 9;
  if (::kill(::getppid(), 0) == 0) return 10;
  rlimit memory{}, seconds{};
  ::getrlimit(RLIMIT_AS, &memory);
  ::getrlimit(RLIMIT_CPU, &seconds);
  if (memory.rlim_max > (rlim_t{2} << 30) || seconds.rlim_max > 10) return 11;
  bool threads = false;
  std::thread([&] { threads = true; }).join();
  if (::eventfd(0, EFD_CLOEXEC) < 0) return 13;  // what a library's threads wake one another by
  return threads ? 0 : 12;
}

}  // namespace

TEST(Encierro, LeavesComputingAndReadingTheseFoldersOnly) {
  const test::TestFolder open, closed;
  EscribirArchivo(open.File("a"), "a");
  EscribirArchivo(closed.File("a"), "a");
  const pid_t child = ::fork();
  if (child == 0) ::_exit(Inside(open.File("a"), closed.File("a")));
  int status = -1;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

// What the process answers on a kernel without one of the walls.
TEST(Encierro, WhatTheKernelRefusesIsNotTheFilesFault) {
  const std::string svg =
      R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><text>M</text></svg>)";
  const std::string wmf = test::HalfBlackMetafile();
  const auto without = [](const char* wall, const std::string& bytes) {
    const pid_t child = ::fork();
    if (child == 0) {
      scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
      const int number = seccomp_syscall_resolve_name(wall);
      seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), number, 0);
      if (wall == std::string("seccomp"))
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1,
                         scmp_arg_cmp{0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0});
      if (seccomp_load(filter) != 0) ::_exit(100);
      ::_exit(static_cast<int>(Decodificar(ProgramaDecodificador(), bytes).razon));
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return static_cast<Razon>(WEXITSTATUS(status));
  };
  for (const std::string& bytes : {svg, wmf}) EXPECT_EQ(without("seccomp", bytes), Razon::Insegura);
  EXPECT_EQ(without("landlock_create_ruleset", svg), Razon::Parcial) << "without its letter";
  EXPECT_EQ(without("landlock_create_ruleset", wmf), Razon::Insegura) << "its reader wants fonts at once";
  EXPECT_EQ(without("landlock_create_ruleset", wmf.substr(0, 90)), Razon::Insegura);
  EXPECT_EQ(without("getitimer", svg), Razon::Hecha);
  EXPECT_EQ(without("getitimer", wmf.substr(0, 90)), Razon::Danada);
}
