// Any bytes as the settings file that is there: a write changes one line or adds at most three, writing the
// same value again changes nothing, and every other byte stays.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "app/basINI.h"

using namespace pixmosa;

namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string before(reinterpret_cast<const char*>(data), size);
  const IniValue value{"Main", "Tama\xF1o", "7"};
  const std::string after = WithIniValue(before, value);
  Check(WithIniValue(after, value) == after);
  Check(WithIniValue(WithIniValue(before, {"Main", "Tama\xF1o", "123"}), value) == after);
  Check(WithIniValue(after, {"mAIN", "TAMA\xD1O", "7"}) == after);

  // What both have at the front and at the back leaves one place where they differ; the value stands there.
  const auto at = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto front = static_cast<std::size_t>(at.first - before.begin());
  std::size_t back = 0;
  while (back < std::min(before.size(), after.size()) - front &&
         before[before.size() - 1 - back] == after[after.size() - 1 - back])
    ++back;
  const std::string removed = before.substr(front, before.size() - front - back);
  const std::string added = after.substr(front, after.size() - front - back);
  Check(removed.find_first_of("\r\n") == std::string::npos);
  Check(added.size() <= std::string("\r\n[Main]\r\nTama\xF1o=7\r\n").size());
  return 0;
}
