// Runs a program of the build and takes what it prints.
#pragma once

#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "platform/AtomicFile.h"
#include "platform/ProgramFolder.h"
#include "tests/support/TestFolder.h"

namespace pixmosa::test {

struct Resultado {
  int status;  // exit status, -1 where a signal ended it
  std::string out, err;
};

// Runs `program` of the test's own folder with these words, without a display; `input` is its standard input.
inline Resultado RunProgram(const std::string& program, const std::vector<std::string>& words,
                            const std::string& input = {}) {
  const TestFolder folder;
  EscribirArchivo(folder.File("in"), input);
  const std::string path = (ProgramFolder() / program).string();
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(::open(folder.File("in").c_str(), O_RDONLY), STDIN_FILENO);
    ::dup2(::open(folder.File("out").c_str(), O_WRONLY | O_CREAT, 0600), STDOUT_FILENO);
    ::dup2(::open(folder.File("err").c_str(), O_WRONLY | O_CREAT, 0600), STDERR_FILENO);
    ::unsetenv("DISPLAY");
    ::unsetenv("QT_QPA_PLATFORM");
    std::vector<char*> argv{const_cast<char*>(path.c_str())};
    for (const std::string& w : words) argv.push_back(const_cast<char*>(w.c_str()));
    argv.push_back(nullptr);
    ::execv(path.c_str(), argv.data());
    ::_exit(127);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, LeerArchivo(folder.File("out")),
          LeerArchivo(folder.File("err"))};
}

inline Resultado Cli(const std::vector<std::string>& words, const std::string& input = {}) {
  return RunProgram("pixmosa-cli", words, input);
}

// Runs shell commands in a folder; in them "p" is the command line program, and "$0" its file.
inline Resultado Shell(const std::string& commands, const std::string& folder) {
  return RunProgram("/bin/sh", {"-c", "cd \"$1\"; p() { \"$0\" \"$@\"; }; " + commands,
                                (ProgramFolder() / "pixmosa-cli").string(), folder});
}

}  // namespace pixmosa::test
