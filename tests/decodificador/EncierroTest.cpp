// What the walls hold back, tried from inside a child.
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "decodificador/Encierro.h"
#include "platform/AtomicFile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

namespace {

// 0 where everything is as it should be, otherwise the number of what is not.
int Inside(const std::string& allowed, const std::string& forbidden) {
  if (!Limitar()) return 1;
  if (!Encerrar({std::filesystem::path(allowed).parent_path(), "/no-existe"})) return 2;
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
