#include "panels/text_editors.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
#include "core/numbers.h"
#include "panels/chosen_side.h"
#include "panels/pager.h"

#include <array>

namespace tarvelin
{

namespace
{

/// What the language combos choose among, by tag from 1.
constexpr std::array<std::string_view, 8> variants = {"",        "German", "English", "Spanish",
                                                      "Italian", "French", "Czech",   "All"};

void chooseVariant(const Combo& combo, std::string& variant)
{
  attempt(
      [&]
      {
        const int tag = combo.tag(combo.index());
        if (tag >= 1 && tag <= static_cast<int>(variants.size()))
          variant = variants[static_cast<std::size_t>(tag - 1)];
      });
}

/// Keeps the text of the chosen side. An emptied field keeps nothing, so a side's text cannot be emptied through it.
void keepText(const Text& field, const Combo& combo, std::string& (*ofSide)(const Side&))
{
  if (field.empty() || !frmmain.chkvicestran.checked())
    return;
  if (const Side* const side = chosenSide(combo))
    ofSide(*side) = field.text();
}

std::string& planOf(const Side& side)
{
  return side.plan;
}

std::string& notesOf(const Side& side)
{
  return side.notes;
}

void chkvicestran_Click()
{
  for (Combo* const combo : {&frmmain.strany, &frmmain.strany3})
    combo->show(frmmain.chkvicestran.checked());
}

void strany_Click()
{
  if (!frmmain.strany.visible())
    return;
  List& list = frmmain.List1;
  list.clear();
  const Side* const side = chosenSide(frmmain.strany);
  if (!side)
    return;
  frmmain.txtBriefink.set(std::string(side->plan));
  const auto& [records, count] = side->objectives;
  for (int n = 1; n <= count; ++n)
  {
    const int added = list.add("Ukol " + std::to_string(n)); // Czech in all languages, unlike a row that is added
    list.setTag(added, added);
    attempt([&] { list.mark(added, records.at(n - 1).Pouzit != 0); });
  }
}

void strany3_Click()
{
  if (!frmmain.strany3.visible())
    return;
  if (const Side* const side = chosenSide(frmmain.strany3))
    frmmain.txtPoznamky.set(std::string(side->notes));
}

const Pager markers{shared.AktualniZnacka, shared.PocetZnacek, frmmain.lblcisloznacky, frmmain.cmdPrev,
                    frmmain.cmdnext};

void showMarker()
{
  const auto marker = []() -> const ZaznamZnacky& { return shared.Znacky.at(shared.AktualniZnacka); };
  attempt([&] { frmmain.lblJmenoZnacky.setCaption(marker().Name); });
  attempt([&] { frmmain.lblPopisZnacky.setCaption(marker().Text); });
  attempt([&] { frmmain.lbltypZnacky.setCaption(marker().Type); });
}

void cmdnext_Click()
{
  pageOn(markers);
  showMarker();
}

void cmdPrev_Click()
{
  pageBack(markers);
  showMarker();
}

/// The fields with a font of their own, in the order of Nastaveni.Pisma.
Text* const fontFields[] = {&frmmain.txtBriefink, &frmmain.txtOverview, &frmmain.txtPoznamky};

void cmdF_Click(int index)
{
  Text& field = *fontFields[index];
  Dialog& dialog = frmmain.CommonDialog1;
  dialog.font = field.font();
  if (!attempt([&] { dialog.showFont(); }))
    return;
  const Font& font = dialog.font;
  field.setFont(font);
  attempt(
      [&]
      {
        shared.Nastaveni.Pisma.at(index) = {font.name,
                                            flagOf(font.bold),
                                            flagOf(font.italic),
                                            flagOf(font.strikethrough),
                                            flagOf(font.underline),
                                            toInt16(font.size),
                                            font.color};
      });
}

struct Shortcut
{
  char key;
  std::string_view markup;
};

constexpr Shortcut shortcuts[] = {
    {'B', "<BR>"}, {'I', "<I></I>"}, {'T', "<B></B>"}, {'U', "<U></U>"}, {'P', "<P></P>"},
};

std::string markerLink()
{
  const auto ask = [](int question) { return desk().prompt(Texty(question), Texty(94), "").value_or(""); };
  const std::string name = ask(95);
  return "<A href=\"marker:" + name + "\">" + ask(96) + "</A>";
}

/// Markup goes to the end of the text, wherever the caret stands.
void text_KeyUp(Text& field, const KeyEvent& event)
{
  constexpr int ctrlAlone = 2;
  if (event.shift != ctrlAlone)
    return;
  if (event.key == 'A')
    return field.append(markerLink());
  for (const auto& [key, markup] : shortcuts)
    if (event.key == key)
      field.append(markup);
}

} // namespace

void attachTextEditors()
{
  frmmain.txtBriefink.onChange = [] { keepText(frmmain.txtBriefink, frmmain.strany, planOf); };
  frmmain.txtPoznamky.onChange = [] { keepText(frmmain.txtPoznamky, frmmain.strany3, notesOf); };
  frmmain.chkvicestran.onClick = chkvicestran_Click;
  frmmain.strany.onClick = strany_Click;
  frmmain.strany3.onClick = strany3_Click;
  frmmain.jazykbrif.onClick = [] { chooseVariant(frmmain.jazykbrif, shared.JazykBrifing); };
  frmmain.jazykover.onClick = [] { chooseVariant(frmmain.jazykover, shared.JazykOverview); };
  frmmain.cmdnext.onClick = cmdnext_Click;
  frmmain.cmdPrev.onClick = cmdPrev_Click;
  frmmain.cmdF.each([](Command& command, int index) { command.onClick = [index] { cmdF_Click(index); }; });
  for (Text* const field :
       {&frmmain.txtBriefink, &frmmain.txtPoznamky, &frmmain.txtOverview, &frmmain.txtUkol, &frmdebrief.txtdebrief})
    field->onKeyUp = [field](const KeyEvent& event) { text_KeyUp(*field, event); };
}

} // namespace tarvelin
