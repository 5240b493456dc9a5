#pragma once

#include "core/forms/rich_text.h"
#include "core/records.h"

#include <string_view>

namespace tarvelin
{

/// Where the settings keep the look of one group of words.
struct StyleSetting
{
  Colour ZaznamNastaveni::*colour;
  Flag ZaznamNastaveni::*bold;
  Flag ZaznamNastaveni::*italic;

  /// The look that is set now.
  TextStyle style() const;
};

inline constexpr StyleSetting functionStyle{&ZaznamNastaveni::FunkceBarva, &ZaznamNastaveni::FunkceTucne,
                                            &ZaznamNastaveni::FunkceKurziva};
inline constexpr StyleSetting equipmentStyle{&ZaznamNastaveni::VybaveniBarva, &ZaznamNastaveni::VybaveniTucne,
                                             &ZaznamNastaveni::VybaveniKurziva};
inline constexpr StyleSetting actionStyle{&ZaznamNastaveni::Konst1Barva, &ZaznamNastaveni::Konst1Tucne,
                                          &ZaznamNastaveni::Konst1Kurziva};
inline constexpr StyleSetting animationStyle{&ZaznamNastaveni::Konst2Barva, &ZaznamNastaveni::Konst2Tucne,
                                             &ZaznamNastaveni::Konst2Kurziva};
inline constexpr StyleSetting operatorStyle{&ZaznamNastaveni::OperatorBarva, &ZaznamNastaveni::OperatorTucne,
                                            &ZaznamNastaveni::OperatorKurziva};
inline constexpr StyleSetting commentStyle{&ZaznamNastaveni::KomentarBarva, &ZaznamNastaveni::KomentarTucne,
                                           &ZaznamNastaveni::KomentarKurziva};

/// A class of words of the script language. Its tag stands with each row of the command index.
struct WordClass
{
  int tag;
  std::string_view heading; ///< in edit.dat, behind "@"
  std::string_view title;   ///< in the command index
  StyleSetting style;
};

inline constexpr WordClass wordClasses[] = {
    {1, "ZBRANE", "Zbraně", equipmentStyle},
    {2, "OPERATORY", "Operátor", operatorStyle},
    {3, "PRIKAZY", "Příkaz nebo funkce", functionStyle},
    {4, "ACTIONKON", "Konstanta příkazu Action", actionStyle},
    {5, "ANIMACE", "Animační konstanta", animationStyle},
};

/// The class of a tag; null for words that stand before the first heading.
const WordClass* wordClass(int tag);

} // namespace tarvelin
