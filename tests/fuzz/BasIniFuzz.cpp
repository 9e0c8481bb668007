// Any bytes as the settings file that is there: a write changes one line or adds at most three, writing the
// same value again changes nothing, and every other byte stays.
#include "app/basINI.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  const std::string before(bytes);
  const IniValue value{"Main", "Tama\xF1o", "7"};
  const std::string after = WithIniValue(before, value);
  Check(WithIniValue(after, value) == after);
  Check(WithIniValue(WithIniValue(before, {"Main", "Tama\xF1o", "123"}), value) == after);
  Check(WithIniValue(after, {"mAIN", "TAMA\xD1O", "7"}) == after);

  // What both have at the front and at the back leaves one place where they differ; the value stands there.
  const auto at = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto [last, lastAfter] = std::mismatch(before.rbegin(), std::make_reverse_iterator(at.first),
                                               after.rbegin(), std::make_reverse_iterator(at.second));
  const std::string removed(at.first, last.base());
  Check(removed.find_first_of("\r\n") == std::string::npos);
  Check(lastAfter.base() - at.second <= std::ptrdiff_t{sizeof "\r\n[Main]\r\nTama\xF1o=7\r\n" - 1});
}
