#include "conversion/mFontSize.h"

#include <algorithm>

namespace pixmosa {

Font FontOfChoice(const FontChoice& choice, const Font& before) {
  if (choice.name.empty()) return before;
  return {choice.name, std::max(1, PointsOfPixels(choice.pixelHeight))};
}

}  // namespace pixmosa
