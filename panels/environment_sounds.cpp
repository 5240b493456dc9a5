#include "panels/environment_sounds.h"

#include "core/forms/frmdalsinast.h"
#include "core/shared.h"
#include "core/strings.h"
#include "panels/row_steps.h"
#include "panels/sound_choice.h"

namespace tarvelin
{

namespace
{

/// A box and the value of the highlighted record that it edits. A fixed value is as wide as its padding.
struct Editor
{
  Text& box;
  std::string ZaznamOkoli::*value;
  bool fixed = false;
};

// in the order in which a click fills them
const Editor editors[] = {
    {frmdalsinast.txtrozname, &ZaznamOkoli::Jmeno, true},
    {frmdalsinast.txtnazev, &ZaznamOkoli::Nazev, true},
    {frmdalsinast.txtzvukroz, &ZaznamOkoli::Den},
    {frmdalsinast.txtzvuk2roz, &ZaznamOkoli::Noc},
    {frmdalsinast.txthlasitost1, &ZaznamOkoli::DenHlasitost},
    {frmdalsinast.txthlasitost2, &ZaznamOkoli::NocHlasitost},
    {frmdalsinast.txthloubka1, &ZaznamOkoli::DenHloubka},
    {frmdalsinast.txthloubka2, &ZaznamOkoli::NocHloubka},
};

Field* const editingFields[] = {
    &frmdalsinast.Command3,    &frmdalsinast.Command4,    &frmdalsinast.txtnazev,      &frmdalsinast.txtzvukroz,
    &frmdalsinast.txtzvuk2roz, &frmdalsinast.txtrozname,  &frmdalsinast.txthlasitost1, &frmdalsinast.txthlasitost2,
    &frmdalsinast.txthloubka1, &frmdalsinast.txthloubka2, &frmdalsinast.cmdopen1,      &frmdalsinast.Command5,
};

ZaznamOkoli& highlighted()
{
  return shared.Okoli.at(frmdalsinast.seznamrozzvuku.index());
}

std::string padded(std::string_view text)
{
  std::string fixed = left(text, fixedTextWidth);
  fixed.append(static_cast<std::size_t>(fixedTextWidth) - length(fixed), ' ');
  return fixed;
}

void store(const Editor& editor)
{
  const std::string& text = editor.box.text();
  highlighted().*editor.value = editor.fixed ? padded(text) : text;
}

void Command2_Click()
{
  attempt([] { addMarked(frmdalsinast.seznamrozzvuku, Texty(59) + std::to_string(shared.PocetOkoli + 1)); });
  attempt([] { shared.Okoli.redimPreserve(shared.PocetOkoli + 1); });
  attempt([] { shared.PocetOkoli = counted(shared.PocetOkoli); });
  Tlacitka();
}

void Command4_Click()
{
  shared.Okoli.reset();
  shared.PocetOkoli = 0;
  frmdalsinast.seznamrozzvuku.clear();
  Tlacitka();
}

void Command3_Click()
{
  const int index = frmdalsinast.seznamrozzvuku.index();
  attempt([&] { frmdalsinast.seznamrozzvuku.remove(index); });
  closeGap(shared.Okoli, index, shared.PocetOkoli);
  attempt([] { shared.PocetOkoli = counted(shared.PocetOkoli, -1); });
  if (shared.PocetOkoli <= 0)
    Command4_Click();
}

void seznamrozzvuku_Click()
{
  for (const Editor& editor : editors)
    attempt(
        [&]
        {
          const std::string value = highlighted().*editor.value;
          editor.box.set(value);
          store(editor);
        });
}

} // namespace

void Tlacitka()
{
  enableAll(editingFields, shared.PocetOkoli > 0);
}

void attachEnvironmentSounds()
{
  frmdalsinast.Command2.onClick = Command2_Click;
  frmdalsinast.Command3.onClick = Command3_Click;
  frmdalsinast.Command4.onClick = Command4_Click;
  frmdalsinast.cmdopen1.onClick = [] { chooseSound(frmdalsinast.txtzvukroz); };
  frmdalsinast.Command5.onClick = [] { chooseSound(frmdalsinast.txtzvuk2roz); };
  frmdalsinast.seznamrozzvuku.onClick = seznamrozzvuku_Click;
  for (const Editor& editor : editors)
    editor.box.onChange = [&editor] { attempt([&] { store(editor); }); };
}

} // namespace tarvelin
