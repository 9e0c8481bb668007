// The decoding process seen from the program, with other programs in its place where it should misbehave.
#include <cerrno>
#include <chrono>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

#include "platform/AtomicFile.h"
#include "platform/decodificador/Cliente.h"
#include "tests/support/Metafile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using namespace std::chrono_literals;

namespace {

// An answer in pieces of `step` bytes, as the client takes it.
Decodificada Answered(const std::string& bytes, std::size_t step) {
  Respuesta answer;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::span<std::byte> gap = answer.Hueco();
    const std::size_t n = std::min({gap.size(), step, bytes.size() - at});
    if (n == 0) break;
    std::memcpy(gap.data(), bytes.data() + at, n);
    answer.Llegan(n);
    at += n;
  }
  return answer.Tomar();
}

std::string Header(Razon reason, std::uint32_t width, std::uint32_t height) {
  const Cabecera c{Cabecera::kMarca, static_cast<std::uint32_t>(reason), width, height};
  return {reinterpret_cast<const char*>(&c), sizeof c};
}

}  // namespace

TEST(Respuesta, OnlyAWholeAnswerIsAPicture) {
  const std::string two = Header(Razon::Hecha, 2, 1) + std::string("\1\2\3\4\5\6\7\xFF", 8);
  for (const std::size_t step : {1, 3, 100}) {
    const Decodificada d = Answered(two + "more", step);
    ASSERT_EQ(d.razon, Razon::Hecha);
    EXPECT_EQ(d.imagen.Size(), (Extent{2, 1}));
    EXPECT_EQ(d.imagen.Row(0)[0], 0xFF030201U) << "the fourth byte is opaque";
    for (std::size_t keep = 0; keep < two.size(); ++keep)
      EXPECT_EQ(Answered(two.substr(0, keep), step).razon, Razon::Caida) << keep;
  }
  EXPECT_EQ(Answered(Header(Razon::Vacia, 0, 0), 16).razon, Razon::Vacia);
  EXPECT_EQ(Answered(Header(Razon::Grande, 30000, 7), 16).declarada, (Extent{30000, 7}));
  for (const std::string& none :
       {Header(Razon::Hecha, 0, 5), Header(Razon::Hecha, 65536, 65536), Header(Razon::Hecha, 0xFFFFFFFF, 1),
        Header(Razon::Tarde, 1, 1), "X" + Header(Razon::Vacia, 0, 0)})
    EXPECT_EQ(Answered(none + std::string(64, 'x'), 16).razon, Razon::Caida);
}

TEST(Decodificar, EveryWayToFailIsAnAnswerAndTheCallerLivesMeanwhile) {
  const std::string large(3 << 20, 'x'), endless = test::EndlessMetafile();
  const std::filesystem::path own = ProgramaDecodificador();
  const test::TestFolder folder;
  EscribirArchivo(folder.File("p"), "#!/bin/sh\nexit 127\n");
  std::filesystem::permissions(folder.File("p"), std::filesystem::perms::owner_all);
  for (const auto& [program, input, reason] :
       std::vector<std::tuple<std::filesystem::path, std::string, Razon>>{
           {"/no-existe", "", Razon::Ausente},
           {"/bin/false", large, Razon::Caida},      // ends without reading or answering
           {folder.File("p"), "", Razon::Insegura},  // ends as the loader does that misses a library
           {"/bin/cat", large, Razon::Caida},        // answers what is no answer
           {"/usr/bin/yes", "", Razon::Caida},       // answers without end
           {own, large, Razon::Desconocida}})
    EXPECT_EQ(Decodificar(program, input).razon, reason) << program;
  int calls = 0;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Decodificar(
                own, endless, [&] { ++calls; }, 400ms)
                .razon,
            Razon::Tarde);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 3s);
  EXPECT_GT(calls, 5);
  EXPECT_THROW(Decodificar(own, endless, [] { throw 1; }), int);
  EXPECT_TRUE(::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) << "a process is left";
}
