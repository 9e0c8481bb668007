// Work spread over threads, its results taken in order.
#pragma once

#include <functional>
#include <optional>

namespace pixmosa {

// A piece of work: `hacer` runs on one of the threads, and gets its number from 0; `despues` on the caller's,
// in the order in which the pieces were taken. No ends the work.
struct Encargo {
  std::function<void(unsigned thread)> hacer;
  std::function<bool()> despues;
};

// Takes pieces until there are none, by one thread at a time, and does them on `threads` threads (with one:
// on the caller's own); as many are under way at most, and as many again wait for their turn. What a piece
// throws is thrown here in its turn. False where a piece ended the work. Everything that was begun is
// finished when this returns or throws.
bool Repartir(unsigned threads, const std::function<std::optional<Encargo>()>& siguiente);

}  // namespace pixmosa
