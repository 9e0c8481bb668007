// Films through the real program.
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <pty.h>
#include <thread>

#include <QImageReader>

#include "platform/qt/QtPicture.h"
#include "platform/qt/QtPictureCodec.h"
#include "tests/support/Gif.h"
#include "tests/support/GuiApplication.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Recorte;
using test::Resultado;

namespace {

// What a program writes on a terminal of 40 x 12 until it ends; a signal is sent once `when` has been seen.
struct EnTerminal {
  std::string out;
  int status = 0;

  EnTerminal(const std::vector<std::string>& words, const std::string& when, int signal) {
    winsize size{12, 40, 0, 0};
    int screen = -1;
    const std::string program = (ProgramFolder() / "pixmosa-cli").string();
    const pid_t child = ::forkpty(&screen, nullptr, nullptr, &size);
    if (child == 0) {
      std::vector<char*> argv{const_cast<char*>(program.c_str())};
      for (const std::string& w : words) argv.push_back(const_cast<char*>(w.c_str()));
      argv.push_back(nullptr);
      ::execv(program.c_str(), argv.data());
      ::_exit(127);
    }
    char chunk[4096];
    bool sent = false;
    for (ssize_t n = 0; (n = ::read(screen, chunk, sizeof chunk)) > 0;) {
      out.append(chunk, static_cast<std::size_t>(n));
      if (sent || when.empty() || out.find(when) == std::string::npos) continue;
      ::kill(child, signal);
      sent = true;
    }
    ::close(screen);
    ::waitpid(child, &status, 0);
  }
};

const std::string kEntrar = "\x1b[?1049h\x1b[?25l", kSalir = "\x1b[?25h\x1b[?1049l";

}  // namespace

class OrdenPeliculaTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string gif = folder.File("cine.gif");

  void SetUp() override { EscribirArchivo(gif, test::GifDe(8, 8, Frames())); }

  // A white screen; a black box; a green one over it that goes again; a dot.
  static std::vector<Recorte> Frames() {
    return {{0, 0, 8, 8, std::vector<int>(64, 1), 1, -1, 12},
            {0, 0, 4, 4, std::vector<int>(16, 0), 1, -1, 5},
            {2, 2, 6, 6, std::vector<int>(36, 3), 3, -1, 30},
            {7, 7, 1, 1, {0}, 0, -1, 1}};
  }
  Resultado Film(std::vector<std::string> more) {
    more.insert(more.begin(), {"pelicula", gif, "--columnas", "8"});
    return Cli(more);
  }
};

TEST_F(OrdenPeliculaTest, GifReadsBackWithItsFramesDelaysAndLoop) {
  test::NeedGuiApplication();
  for (const std::vector<std::string>& more :
       {std::vector<std::string>{}, {"--color"}, {"--escala", "1", "--fondo", "0,0,99"}}) {
    std::vector<std::string> words = {"-o", folder.File("p.gif")};
    words.insert(words.end(), more.begin(), more.end());
    const Resultado r = Film(words);
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out + r.err, "");
    QImageReader reader(QString::fromStdString(folder.File("p.gif")));
    EXPECT_EQ(reader.loopCount(), -1) << "for ever";
    std::vector<int> delays;
    std::vector<QImage> seen;
    for (QImage image; reader.read(&image);) {
      seen.push_back(image.convertToFormat(QImage::Format_RGB32));
      delays.push_back(reader.nextImageDelay());
    }
    EXPECT_EQ(delays, (std::vector<int>{120, 50, 300, 100}));
    // Each frame is what the still method draws of it, within the nearness of its colours.
    for (std::size_t k = 0; k < seen.size(); ++k) {
      std::vector<std::string> still = {"ascii", folder.File("q.png"), "--columnas", "8",
                                        "-o",    folder.File("s.png")};
      still.insert(still.end(), more.begin(), more.end());
      const auto frames = QtPictureCodec().AbrirAnimacion(LeerArchivo(gif), "x");
      for (std::size_t i = 0; i < k; ++i) frames->Siguiente();
      ImageOf(frames->Siguiente()->imagen).save(QString::fromStdString(folder.File("q.png")));
      ASSERT_EQ(Cli(still).status, 0);
      const QImage drawn = QImage(QString::fromStdString(folder.File("s.png")));
      ASSERT_EQ(seen[k].size(), drawn.size());
      for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x) {
          ASSERT_NEAR(qRed(seen[k].pixel(x, y)), qRed(drawn.pixel(x, y)), 9) << k << ": " << x << ' ' << y;
          ASSERT_NEAR(qBlue(seen[k].pixel(x, y)), qBlue(drawn.pixel(x, y)), 9) << k;
        }
    }
  }
}

TEST_F(OrdenPeliculaTest, FramesAreFilesThatAsciiWouldWrite) {
  test::NeedGuiApplication();
  const auto frames = QtPictureCodec().AbrirAnimacion(LeerArchivo(gif), "x");
  for (int k = 1; const auto frame = frames->Siguiente(); ++k)
    ImageOf(frame->imagen).save(QString::fromStdString(folder.File("cine 00" + std::to_string(k) + ".png")));
  for (const std::vector<std::string>& more : {std::vector<std::string>{},
                                               {"--metodo", "tono", "--caracteres", "bloques"},
                                               {"--formato", "html", "--color"},
                                               {"--formato", "png", "--metodo", "antialias"}}) {
    std::vector<std::string> words = {"--carpeta", folder.File("fuera"), "--hilos", "3"};
    words.insert(words.end(), more.begin(), more.end());
    EXPECT_EQ(Film(words).err, "");
    const std::string ending = more.size() > 1 && more[0] == "--formato" ? "." + more[1] : ".txt";
    for (const char* k : {"1", "2", "3", "4"}) {
      const std::string name = std::string("cine 00") + k;
      std::vector<std::string> still = {"ascii", folder.File(name + ".png"), "--columnas", "8",
                                        "-o",    folder.File("uno" + ending)};
      still.insert(still.end(), more.begin(), more.end());
      if (ending != ".txt") still.insert(still.end(), {"--titulo", name});
      Cli(still);
      EXPECT_EQ(LeerArchivo(folder.File("fuera/" + name + ending)), LeerArchivo(folder.File("uno" + ending)))
          << name << ending;
    }
  }
}

TEST_F(OrdenPeliculaTest, WrongUseIsSaid) {
  const std::string where = folder.File("p.html");
  std::filesystem::create_directory(folder.File("vacia"));
  const struct {
    std::vector<std::string> words;
    int status;
    std::string sentence;
  } cases[] = {
      {{gif}, 2, "falta la opción -o con el archivo de la película, --carpeta o --reproducir"},
      {{gif, "-o", where, "--reproducir"}, 2, "las opciones -o, --carpeta y --reproducir no van juntas"},
      {{gif, "-o", "p.avi"}, 2, "el archivo \"p.avi\" debe terminar en .html, .gif o .cast"},
      {{gif, "-o", where, "--formato", "html"},
       2,
       "la opción --formato es para los fotogramas sueltos de --carpeta"},
      {{gif, "-o", gif},
       2,
       "\"" + gif + "\" es una de las imágenes de partida; con --sobrescribir se sustituye"},
      {{gif, "-o", where, "--ritmo", "5"},
       2,
       "la opción --ritmo espera un número entero de 20 a 3600000, no \"5\""},
      {{folder.File("vacia"), "-o", where},
       1,
       "No hay imágenes en la carpeta \"" + folder.File("vacia") + "\""},
      {{folder.File("no.gif"), "-o", where},
       1,
       "No se ha podido leer \"" + folder.File("no.gif") + "\": no existe"},
      {{"-", "-o", where}, 1, "No se ha podido leer la imagen \"-\": el archivo está vacío"},
      {{gif, "-o", folder.File("p.gif"), "--columnas", "3000", "--escala", "8"},
       1,
       "\"" + gif + "\": La imagen sería demasiado grande: "},
  };
  for (const auto& c : cases) {
    std::vector<std::string> words = c.words;
    words.insert(words.begin(), "pelicula");
    const Resultado r = Cli(words);
    EXPECT_EQ(r.status, c.status) << c.sentence;
    EXPECT_TRUE(r.err.starts_with("pixmosa-cli: " + c.sentence)) << r.err;
    EXPECT_FALSE(std::filesystem::exists(where));
  }
}

TEST_F(OrdenPeliculaTest, TerminalIsLeftAsItWas) {
  EnTerminal all({"pelicula", gif, "--reproducir"}, "", 0);
  EXPECT_TRUE(WIFEXITED(all.status) && WEXITSTATUS(all.status) == 0) << all.out;
  EXPECT_TRUE(all.out.starts_with(kEntrar));
  EXPECT_TRUE(all.out.ends_with(kSalir));
  std::size_t frames = 0, rows = 0;
  for (std::size_t at = all.out.find("\x1b[H"); at != std::string::npos; at = all.out.find("\x1b[H", at + 1))
    ++frames;
  for (const char c : all.out.substr(0, all.out.find("\x1b[H", all.out.find("\x1b[H") + 1)))
    rows += c == '\n';
  EXPECT_EQ(frames, 4U);
  EXPECT_LT(rows, 12U) << "it fits the terminal";

  const auto start = std::chrono::steady_clock::now();
  EnTerminal again({"pelicula", gif, "--reproducir"}, "", 0);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(570)) << "its true pace";

  EscribirArchivo(gif, test::GifDe(1, 1, {{.pixels = {1}}, {.pixels = {0}, .hundredths = 6000}}));
  for (const int signal : {SIGINT, SIGTERM}) {
    EnTerminal cut({"pelicula", gif, "--reproducir"}, "\x1b[H", signal);
    EXPECT_TRUE(WIFSIGNALED(cut.status) && WTERMSIG(cut.status) == signal);
    EXPECT_TRUE(cut.out.ends_with(kSalir));
  }
}

TEST_F(OrdenPeliculaTest, ThreadsChangeNeitherBytesNorOrder) {
  std::vector<std::string> pictures;
  for (int k = 0; k < 12; ++k) {
    const std::string file = folder.File("f" + std::to_string(k) + ".png");
    pictures.push_back(file);
    if (k % 4 == 3) {
      EscribirArchivo(file, k % 8 == 3 ? "nada" : "");
      continue;
    }
    Picture p(300 - 20 * k, 200);  // the first ones take longest
    for (std::size_t i = 0; i < p.PixelCount(); ++i)
      p.Writable()[i] =
          PixelOfColour(static_cast<Colour>(i * 2654435761U * static_cast<unsigned>(k + 1) >> 8 & 0xFFFFFF));
    ImageOf(p).save(QString::fromStdString(file));
  }
  for (const std::vector<std::string>& order :
       {std::vector<std::string>{"ascii", "--columnas", "60", "--formato", "html", "--color"},
        {"ascii", "--columnas", "60", "--formato", "png"},
        {"ascii", "--columnas", "40", "--metodo", "formas", "--caracteres", "braille", "--formato", "svg",
         "--trazos"},
        {"efecto", "desenfocar", "29=40", "--semilla", "5"}}) {
    std::string said[2];
    for (const char* threads : {"1", "4"}) {
      std::vector<std::string> words = {order[0]};
      words.insert(words.end(), pictures.begin(), pictures.end());
      words.insert(words.end(), order.begin() + 1, order.end());
      words.insert(words.end(), {"--carpeta", folder.File(threads), "--hilos", threads});
      const Resultado r = Cli(words);
      EXPECT_EQ(r.status, 1);
      said[threads[0] == '4'] = r.err;
    }
    EXPECT_EQ(said[0], said[1]) << "in the order of the operands";
    EXPECT_LT(said[0].find("f3.png"), said[0].find("f7.png"));
    EXPECT_LT(said[0].find("f7.png"), said[0].find("f11.png"));
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.File("1")))
      EXPECT_EQ(LeerArchivo(entry.path()), LeerArchivo(folder.File("4/" + entry.path().filename().string())))
          << ++files;
    std::filesystem::remove_all(folder.File("1"));
    std::filesystem::remove_all(folder.File("4"));
    EXPECT_EQ(Cli({"ascii", pictures[0], "--carpeta", folder.File("x"), "--hilos", "0"}).status, 2);
  }
}

TEST_F(OrdenPeliculaTest, AnInterruptedFolderHoldsWholeFilesOnly) {
  std::vector<std::string> words = {"efecto"};
  for (int k = 0; k < 40; ++k) {
    words.push_back(folder.File("g" + std::to_string(k) + ".png"));
    ImageOf(Picture::Filled(700, 500, Rgb(k, 1, 2))).save(QString::fromStdString(words.back()));
  }
  words.insert(words.end(), {"desenfocar", "--carpeta", folder.File("fuera"), "--hilos", "4"});
  EnTerminal cut(words, "3/40", SIGINT);
  EXPECT_TRUE(WIFSIGNALED(cut.status)) << cut.out;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.File("fuera"))) {
    ++files;
    EXPECT_EQ(entry.path().extension(), ".png") << entry.path();
    EXPECT_FALSE(QImage(QString::fromStdString(entry.path().string())).isNull()) << entry.path();
  }
  EXPECT_GT(files, 0);
  EXPECT_LT(files, 40);
}
