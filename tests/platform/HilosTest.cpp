#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <thread>

#include "platform/Hilos.h"

using namespace pixmosa;

namespace {

// Pieces 0..count-1, the earlier ones slower; `begun` are under way at most `most` at a time.
struct Cadena {
  int count;
  int taken = 0;
  std::atomic<int> underWay = 0, most = 0;
  std::string order{};
  std::function<void(int)> hacer = [](int) {};
  std::function<bool(int)> seguir = [](int) { return true; };

  std::optional<Encargo> Siguiente() {
    if (taken == count) return std::nullopt;
    const int k = taken++;
    return Encargo{[this, k](unsigned) {
                     const int now = ++underWay;
                     for (int seen = most; now > seen && !most.compare_exchange_weak(seen, now);) {
                     }
                     std::this_thread::sleep_for(std::chrono::milliseconds((count - k) % 20));
                     --underWay;
                     hacer(k);
                   },
                   [this, k] {
                     order += static_cast<char>('a' + k);
                     return seguir(k);
                   }};
  }
  bool Correr(unsigned threads) {
    return Repartir(threads, [this] { return Siguiente(); });
  }
};

}  // namespace

TEST(Hilos, ResultsComeInOrderAndNoMoreThanAskedForAreUnderWay) {
  for (const unsigned threads : {1U, 2U, 5U}) {
    Cadena c{.count = 20};
    EXPECT_TRUE(c.Correr(threads));
    EXPECT_EQ(c.order, "abcdefghijklmnopqrst");
    EXPECT_LE(c.most, static_cast<int>(threads));
    EXPECT_EQ(c.most > 1, threads > 1);
  }
  EXPECT_TRUE(Cadena{.count = 0}.Correr(3));
}

TEST(Hilos, EndsWhereAPieceSaysSoOrFails) {
  for (const unsigned threads : {1U, 4U}) {
    Cadena stopped{.count = 500, .seguir = [](int k) { return k < 2; }};
    EXPECT_FALSE(stopped.Correr(threads));
    EXPECT_EQ(stopped.order, "abc");
    EXPECT_LT(stopped.taken, 100);
    Cadena failed{.count = 30, .hacer = [](int k) {
                    if (k == 3) throw std::runtime_error("tres");
                  }};
    EXPECT_THROW(failed.Correr(threads), std::runtime_error);
    EXPECT_EQ(failed.order, "abc") << "those before it count";
    EXPECT_EQ(failed.underWay, 0) << "nothing is left running";
    EXPECT_THROW(Repartir(threads, []() -> std::optional<Encargo> { throw 1; }), int);
  }
}
