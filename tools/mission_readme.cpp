#include "tools/mission_readme.h"

#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "script/word_search.h"

namespace tarvelin
{

namespace
{

struct Tag
{
  std::string_view name;
  std::string (*text)();
};

constexpr Tag tags[] = {
    {"<MISSION>", [] { return frmmain.txtJmenoMise.text(); }},
    {"<ADDONS>", AddonyDoTextu},
    {"<NAME>", [] { return shared.Nastaveni.UzivatelJmeno; }},
    {"<MAIL>", [] { return shared.Nastaveni.UzivatelMail; }},
};

/// What stands in place of a tag: nothing for one that is not known.
std::string tagText(std::string_view tag)
{
  const std::string name = upper(tag);
  for (const Tag& known : tags)
    if (known.name == name)
      return known.text();
  return {};
}

/// A line of the template with its tags replaced. A "<" that is never closed takes the rest of the line along.
std::string filled(std::string_view line)
{
  std::string result;
  for (;;)
  {
    const std::size_t open = line.find('<');
    result += line.substr(0, open);
    if (open == std::string_view::npos)
      return result;
    line.remove_prefix(open);
    const std::size_t close = line.find('>');
    if (close == std::string_view::npos)
      return result;
    result += tagText(line.substr(0, close + 1));
    line.remove_prefix(close + 1);
  }
}

} // namespace

void NactiReadme(const std::string& path, RichText& box)
{
  const LoggedSteps step(
      [&](const Failure& failure)
      { return "Chyba pri nacitani Readme z: " + path + ", " + failureText(failure) + std::string(crlf); });
  std::string text;
  step(
      [&]
      {
        LineReader readme(path);
        while (!readme.atEnd())
          addLine(text, filled(readme.next()));
      });
  box.set(text);
}

std::string AddonyDoTextu()
{
  const List& addons = frmdalsinast.addony;
  List& seen = tmpfrm.zasobnik;
  seen.clear();
  std::string names;
  for (int i = 1; i < addons.count(); ++i) // the first row is a header
  {
    const std::string& name = addons.text(i);
    if (addons.tag(i) != 1 || BNajdi(0, seen.count() - 1, name, seen) != -1)
      continue;
    names += (seen.count() > 0 ? std::string(crlf) : std::string()) + name;
    seen.add(name);
  }
  return names;
}

} // namespace tarvelin
