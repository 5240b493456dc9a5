#include "panels/more_settings.h"

#include "core/desk.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "panels/titles.h"
#include "script/word_search.h"

namespace tarvelin
{

namespace
{

constexpr int keyPrompt = 113;   // prompts of a row: the key, then
constexpr int firstColumn = 114; // Czech, English, German, French, Italian, Spanish
constexpr int commentPrompt = 120;

void mnudalsizvuky_Click()
{
  if (shared.CestaMise.empty())
    tell(Hlasky(message::noMissionOpen));
  else
    frmdalsinast.show();
}

/// An answer of the user; a cancelled prompt is an empty one.
std::string asked(int prompt)
{
  return desk().prompt(Texty(prompt), "", "").value_or("");
}

void Command6_Click()
{
  const std::string key = asked(keyPrompt);
  if (key.empty())
    return;
  std::string row = "$STRM_" + key;
  for (int prompt = firstColumn; prompt <= commentPrompt; ++prompt)
    row += "," + asked(prompt);
  RichText& table = frmdalsinast.txtstringtable;
  table.select(table.length(), 0);
  table.replaceSelection(row + std::string(crlf));
}

void Command8_Click()
{
  attempt([] { writeText(shared.CestaMise + "Readme.txt", frmdalsinast.txtdokument.text()); });
}

/// The mission's add-ons, each once, with a comma behind all but the last row of the list.
std::string addonNames()
{
  const List& addons = frmdalsinast.addony;
  List& seen = tmpfrm.zasobnik;
  std::string names;
  for (int i = 0; i < addons.count(); ++i)
  {
    const std::string& name = addons.text(i);
    if (addons.tag(i) == 0 || BNajdi(0, seen.count() - 1, name, seen) != -1)
      continue;
    seen.add(name);
    names += name;
    if (i < addons.count() - 1)
      names += ",";
  }
  return trim(names);
}

void Command9_Click()
{
  tmpfrm.zasobnik.clear();
  desk().launch(programFile("\\Addscan.exe"), addonNames(), programFolder());
  tmpfrm.zasobnik.clear();
}

} // namespace

void readStringtable(const std::string& path)
{
  const LoggedSteps step(
      [&](const Failure& failure)
      {
        return "Nastala chyba při čtení Stringtable.csv ze složky: " + path + ", " + failureText(failure) +
               std::string(crlf);
      });
  std::string rows;
  step(
      [&]
      {
        LineReader table(path);
        while (!table.atEnd())
          addLine(rows, table.next());
      });
  frmdalsinast.txtstringtable.set(rows);
}

void attachMoreSettings()
{
  frmdalsinast.onLoad = [] { readFonts(programFile("\\Bfdata\\fonts.dat")); };
  frmdalsinast.Command1.onClick = [] { frmdalsinast.hide(); };
  frmdalsinast.Command6.onClick = Command6_Click;
  frmdalsinast.Command8.onClick = Command8_Click;
  frmdalsinast.Command9.onClick = Command9_Click;
  frmmain.mnudalsizvuky.onClick = mnudalsizvuky_Click;
}

} // namespace tarvelin
