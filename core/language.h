#pragma once

#include <string_view>

namespace tarvelin
{

class List;
class Combo;

/// Reads a language pack: the two text tables, then caption after caption into the fields, then the default texts. An
/// empty path or a pack that cannot be opened leaves everything as it is; a short pack leaves the old captions.
void NactiJazyk(std::string_view path);

/// Fills the language and side combos of the main form and selects their first rows. `strany3` alone is not cleared
/// first, so each run adds four rows to it.
void Jazyky();

/// Fills a combo with the six languages of spoken texts, tags 1 to 6, and selects the first.
void fillSpokenLanguages(Combo& combo);

} // namespace tarvelin
