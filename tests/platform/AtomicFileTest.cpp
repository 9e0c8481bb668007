#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/AtomicFile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
namespace fs = std::filesystem;

namespace {

std::function<void()> flushing;  // what the test looks at when bytes are sent to the disk

// The status of a child that does `work`.
int StatusOf(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    work();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

}  // namespace

// Stands before the system's.
extern "C" int fdatasync(int) {
  if (flushing) flushing();
  return 0;
}

class AtomicFileTest : public testing::Test {
 protected:
  test::TestFolder folder;
  const fs::path& dir = folder.Path();
  fs::path file = dir / "a";

  std::ptrdiff_t Entries() const {
    return std::distance(fs::directory_iterator(dir), fs::directory_iterator());
  }
};

TEST_F(AtomicFileTest, ReplacesWholeOrNotAtAll) {
  EscribirArchivo(file, std::string("d\0s", 3));
  AtomicFile(file).Write("a medias");
  EXPECT_EQ(LeerArchivo(file), std::string("d\0s", 3));
  EXPECT_EQ(Entries(), 1) << "nothing is left beside the file";
}

TEST_F(AtomicFileTest, KeepsPermissionsAndFollowsLinks) {
  EscribirArchivo(file, "x");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_directory(dir / "sub");
  const std::pair<const char*, const char*> links[] = {
      {"a", "enlace"}, {"sub/otro", "lejos"}, {"../meta", "sub/otro"}, {"vuelta", "vuelta"}};
  for (const auto& [to, name] : links) fs::create_symlink(to, dir / name);
  EscribirArchivo(dir / "enlace", "y");
  EscribirArchivo(dir / "lejos", "z");
  for (const char* link : {"enlace", "lejos", "sub/otro"}) EXPECT_TRUE(fs::is_symlink(dir / link)) << link;
  EXPECT_EQ(LeerArchivo(file) + LeerArchivo(dir / "meta"), "yz")
      << "a link to nothing makes what it points to";
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_THROW(EscribirArchivo(dir / "vuelta", "x"), FileError);
}

TEST_F(AtomicFileTest, IsOnTheDiskBeforeItTakesItsPlace) {
  EscribirArchivo(file, "antes");
  std::string seen;
  flushing = [&] {
    std::uintmax_t hidden = 0;
    for (const auto& entry : fs::directory_iterator(dir))
      if (entry.path() != file) hidden = entry.file_size();
    seen += LeerArchivo(file) + std::to_string(hidden);
  };
  EscribirArchivo(file, "después");
  AtomicFile passing(file, Guardado::DePaso);
  passing.Write("x");
  passing.Commit();
  flushing = nullptr;
  EXPECT_EQ(seen, "antes8");
}

TEST_F(AtomicFileTest, ASignalLeavesTheEarlierFileAndNothingElse) {
  EscribirArchivo(file, "antes");
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const int status = StatusOf([&] {
      QuitarTemporalesAlTerminar();
      EscribirArchivo(file, "antes");  // an earlier place is free again
      AtomicFile one(file), other(dir / "b");
      one.Write("a medias");
      ::raise(signal);
    });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal);
    EXPECT_EQ(LeerArchivo(file), "antes");
    EXPECT_EQ(Entries(), 1);
  }
  EXPECT_EQ(StatusOf([] {
              ::signal(SIGHUP, SIG_IGN);  // as nohup does
              QuitarTemporalesAlTerminar();
              ::raise(SIGHUP);
            }),
            0);
}

TEST_F(AtomicFileTest, TheLimitOfAFilesSizeIsSaid) {
  const int status = StatusOf([&] {
    QuitarTemporalesAlTerminar();
    const rlimit limit{4096, 4096};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    try {
      EscribirArchivo(file, std::string(1 << 20, 'x'));
    } catch (const FileError& e) {
      if (e.what() == "No se ha podido escribir \"" + file.string() + "\": el archivo es demasiado grande.")
        ::_exit(7);
    }
  });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 7);
  EXPECT_EQ(Entries(), 0);
}

TEST(RazonDelError, IsSpanish) {
  for (int error = 1; error < 140; ++error) {
    const std::string reason = RazonDelError(error);
    EXPECT_EQ(reason.find(std::strerror(error)), std::string::npos) << reason;
    EXPECT_TRUE(reason == "error del sistema " + std::to_string(error) || !std::isdigit(reason.back()));
  }
  EXPECT_EQ(RazonDelError(EMFILE), "hay demasiados archivos abiertos");
  for (const int usual :
       {EACCES, EPERM,  ENOENT, EISDIR, ENOTDIR, ENOSPC,  EDQUOT, EROFS,  ENAMETOOLONG, EFBIG,  EIO,
        ELOOP,  ENOMEM, EMFILE, ENFILE, EBUSY,   ETXTBSY, ENXIO,  EINVAL, EPIPE,        ESTALE, EAGAIN})
    EXPECT_EQ(RazonDelError(usual).find("sistema"), std::string::npos) << usual;
}

TEST_F(AtomicFileTest, SaysWhatIsWrong) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::tmpfile(), std::fclose);
  std::fputs("abc", stream.get());
  std::rewind(stream.get());
  EXPECT_EQ(std::fgetc(stream.get()), 'a');
  EXPECT_EQ(LeerFlujo(stream.get(), "-", 2), "bc");
  std::rewind(stream.get());
  const std::string d = dir.string();
  struct Row {
    std::function<void()> work;
    std::string said;
  };
  for (const Row& r :
       {Row{[&] { EscribirArchivo(dir, "x"); }, "escribir \"" + d + "\": es una carpeta."},
        {[&] { EscribirArchivo(dir / "no" / "hay", "x"); }, "escribir \"" + d + "/no/hay\": no existe."},
        {[] { EscribirArchivo("/dev/full", "x"); }, "escribir \"/dev/full\": no queda espacio en el disco."},
        {[&] { LeerArchivo(dir / "nada"); }, "leer \"" + d + "/nada\": no existe."},
        {[&] { LeerArchivo(dir); }, "leer \"" + d + "\": es una carpeta."},
        {[] { LeerArchivo("/dev/zero", 1000); }, "leer \"/dev/zero\": el archivo es demasiado grande."},
        {[&] { LeerFlujo(stream.get(), "-", 2); }, "leer \"-\": el archivo es demasiado grande."}}) {
    std::string said;
    try {
      r.work();
    } catch (const FileError& e) {
      said = e.what();
    }
    EXPECT_EQ(said, "No se ha podido " + r.said);
  }
}
