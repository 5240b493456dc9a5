#include "core/language.h"

#include "core/attempt.h"
#include "core/default_texts.h"
#include "core/forms/all_forms.h"
#include "core/forms/frmmain.h"
#include "core/language_map.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"

#include <optional>

namespace tarvelin
{

namespace
{

std::string CtiRadek(LineReader& pack)
{
  return trim(pack.next());
}

bool sameTarget(const CaptionLine& a, const CaptionLine& b)
{
  return a.form == b.form && a.field == b.field && a.target == b.target && a.index == b.index;
}

void setTitle(const CaptionLine& line, std::string_view text)
{
  Form* const form = findForm(line.form);
  if (line.target == CaptionTarget::title)
    form->setCaption(text);
  else if (line.target == CaptionTarget::tab)
    dynamic_cast<TabStrip*>(form->find(line.field))->setTabCaption(line.index, text);
  else
    form->find(line.field, line.index)->setCaption(text);
}

void readCaption(LineReader& pack, const CaptionLine& line)
{
  const std::string text = CtiRadek(pack);
  setTitle(line, text);
  for (const CaptionCopy& copy : captionCopies())
    if (sameTarget(copy.from, line))
      setTitle(copy.to, text);
}

void fill(Combo& combo, std::initializer_list<int> texts)
{
  int tag = 0;
  for (const int text : texts)
    attempt([&] { combo.add(Texty(text), ++tag); });
  attempt([&] { combo.select(0); });
}

} // namespace

void NactiJazyk(std::string_view path)
{
  if (path.empty())
    return;
  std::optional<LineReader> pack;
  if (!attempt([&] { pack.emplace(path); }))
    return;
  for (int i = 1; i <= shared.Texty.bound(); ++i)
    attempt([&] { shared.Texty.at(i) = CtiRadek(*pack); });
  shared.Nastaveni.ParametryPbo = Texty(92) + "," + Texty(93) + ",2";
  for (int i = 1; i <= shared.Hlasky.bound(); ++i)
    attempt([&] { shared.Hlasky.at(i) = CtiRadek(*pack); });
  for (const CaptionLine& line : captionLines())
    attempt([&] { readCaption(*pack, line); });
  setMissionTexts();
  setCampaignTexts();
}

void fillSpokenLanguages(Combo& combo)
{
  combo.clear();
  fill(combo, {31, 26, 27, 28, 29, 30});
}

void Jazyky()
{
  for (Combo* const combo : {&frmmain.jazykbrif, &frmmain.jazykover})
  {
    combo->clear();
    fill(*combo, {25, 26, 27, 28, 29, 30, 31, 32});
  }
  fillSpokenLanguages(frmmain.radiojazyk);
  fillSpokenLanguages(frmmain.zvukyjazyk);
  frmmain.strany.clear();
  fill(frmmain.strany, {33, 34, 35, 36});
  fill(frmmain.strany3, {33, 34, 35, 36}); // never cleared: its rows grow with each run
}

} // namespace tarvelin
