#include <csignal>
#include <gtest/gtest.h>

#include "platform/qt/UltimaFrase.h"

namespace {

constexpr char kFallo[] = "prueba: Ha fallado.\n", kSinQt[] = "prueba: No hay Qt.\n";

}  // namespace

TEST(UltimaFrase, IsAllThatIsSaid) {
  const auto set = pixmosa::PonerUltimaFrase<kFallo, kSinQt>;
  EXPECT_EXIT((set(), std::terminate()), testing::KilledBySignal(SIGABRT), "^prueba: Ha fallado.\n$");
  EXPECT_EXIT((set(), qWarning("a warning"), qFatal("the end")), testing::ExitedWithCode(1),
              "^prueba: No hay Qt.\n$");
}
