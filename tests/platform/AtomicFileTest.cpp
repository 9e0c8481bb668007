#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <cstdio>
#include <memory>
#include <unistd.h>

#include "platform/AtomicFile.h"

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
  fs::path dir = fs::temp_directory_path() / ("pixmosa-atomic-" + std::to_string(::getpid()));
  void SetUp() override { fs::create_directories(dir); }
  void TearDown() override { fs::remove_all(dir); }
  std::size_t Entries() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(dir), fs::directory_iterator()));
  }
};

TEST_F(AtomicFileTest, ReplacesWholeOrNotAtAll) {
  const fs::path file = dir / "dibujo.txt";
  EscribirArchivo(file, "uno");
  {
    AtomicFile half(file);
    half.Write("a medias");
  }
  EXPECT_EQ(LeerArchivo(file), "uno");
  EXPECT_EQ(Entries(), 1U) << "nothing is left beside the file";
  EscribirArchivo(file, std::string("d\0s", 3));
  EXPECT_EQ(LeerArchivo(file), std::string("d\0s", 3));
}

TEST_F(AtomicFileTest, KeepsLinksAndPermissions) {
  const fs::path file = dir / "a", link = dir / "enlace";
  EscribirArchivo(file, "x");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("a", link);
  EscribirArchivo(link, "y");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(LeerArchivo(file), "y");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(AtomicFileTest, IsOnTheDiskBeforeItTakesItsPlace) {
  const fs::path file = dir / "a";
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

TEST_F(AtomicFileTest, ALinkToNothingMakesWhatItPointsTo) {
  fs::create_directory(dir / "sub");
  fs::create_symlink("sub/enlace2", dir / "enlace");
  fs::create_symlink("../meta", dir / "sub" / "enlace2");
  EscribirArchivo(dir / "enlace", "x");
  EXPECT_TRUE(fs::is_symlink(dir / "enlace") && fs::is_symlink(dir / "sub" / "enlace2"));
  EXPECT_EQ(LeerArchivo(dir / "meta"), "x");
  fs::create_symlink("vuelta", dir / "vuelta");
  EXPECT_THROW(EscribirArchivo(dir / "vuelta", "x"), FileError);
}

TEST_F(AtomicFileTest, ASignalLeavesTheEarlierFileAndNothingElse) {
  const fs::path file = dir / "a";
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
    EXPECT_EQ(Entries(), 1U);
  }
  EXPECT_EQ(StatusOf([] {
              ::signal(SIGHUP, SIG_IGN);  // as nohup does
              QuitarTemporalesAlTerminar();
              ::raise(SIGHUP);
            }),
            0);
}

TEST_F(AtomicFileTest, TheLimitOfAFilesSizeIsSaid) {
  const fs::path file = dir / "a";
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
  EXPECT_EQ(Entries(), 0U);
}

TEST_F(AtomicFileTest, EveryReasonIsSpanish) {
  for (int error = 1; error < 140; ++error) {
    const std::string reason = RazonDelError(error);
    EXPECT_EQ(reason.find(std::strerror(error)), std::string::npos) << reason;
    EXPECT_TRUE(reason == "error del sistema " + std::to_string(error) || !std::isdigit(reason.back()));
  }
  EXPECT_EQ(RazonDelError(EMFILE), "hay demasiados archivos abiertos");
  EXPECT_EQ(RazonDelError(ECHRNG), "error del sistema " + std::to_string(ECHRNG));
  for (const int usual :
       {EACCES, EPERM,  ENOENT, EISDIR, ENOTDIR, ENOSPC,  EDQUOT, EROFS,  ENAMETOOLONG, EFBIG,  EIO,
        ELOOP,  ENOMEM, EMFILE, ENFILE, EBUSY,   ETXTBSY, ENXIO,  EINVAL, EPIPE,        ESTALE, EAGAIN})
    EXPECT_EQ(RazonDelError(usual).find("sistema"), std::string::npos) << usual;
}

TEST_F(AtomicFileTest, SaysWhatIsWrong) {
  const auto reason = [](auto&& work) -> std::string {
    try {
      work();
    } catch (const FileError& e) {
      return e.what();
    }
    return "";
  };
  const std::string d = dir.string();
  EXPECT_EQ(reason([&] { EscribirArchivo(dir, "x"); }),
            "No se ha podido escribir \"" + d + "\": es una carpeta.");
  EXPECT_EQ(reason([&] { EscribirArchivo(dir / "no" / "hay", "x"); }),
            "No se ha podido escribir \"" + d + "/no/hay\": no existe.");
  EXPECT_EQ(reason([&] { EscribirArchivo("/dev/full", "x"); }),
            "No se ha podido escribir \"/dev/full\": no queda espacio en el disco.");
  EXPECT_EQ(reason([&] { LeerArchivo(dir / "nada"); }),
            "No se ha podido leer \"" + d + "/nada\": no existe.");
  EXPECT_EQ(reason([&] { LeerArchivo(dir); }), "No se ha podido leer \"" + d + "\": es una carpeta.");
  EXPECT_EQ(reason([&] { LeerArchivo("/dev/zero", 1000); }),
            "No se ha podido leer \"/dev/zero\": el archivo es demasiado grande.");
  EscribirArchivo(dir / "f", "abc");
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen((dir / "f").c_str(), "rb"),
                                                               std::fclose);
  EXPECT_EQ(std::fgetc(stream.get()), 'a');
  EXPECT_EQ(LeerFlujo(stream.get(), "-", 2), "bc");
  std::rewind(stream.get());
  EXPECT_EQ(reason([&] { LeerFlujo(stream.get(), "-", 2); }),
            "No se ha podido leer \"-\": el archivo es demasiado grande.");
}
