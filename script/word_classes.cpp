#include "script/word_classes.h"

#include "core/shared.h"

#include <algorithm>
#include <iterator>

namespace tarvelin
{

TextStyle StyleSetting::style() const
{
  const ZaznamNastaveni& set = shared.Nastaveni;
  return {set.*colour, set.*bold != 0, set.*italic != 0};
}

const WordClass* wordClass(int tag)
{
  const auto found = std::ranges::find(wordClasses, tag, &WordClass::tag);
  return found == std::end(wordClasses) ? nullptr : found;
}

} // namespace tarvelin
