#include "panels/sound_effects.h"

#include "core/forms/frmdalsinast.h"
#include "core/shared.h"
#include "core/strings.h"
#include "panels/row_steps.h"
#include "panels/sound_choice.h"

#include <algorithm>

namespace tarvelin
{

namespace
{

struct ClassEditor
{
  Text& box;
  std::string ZaznamSfx::*value;
};

const ClassEditor classEditors[] = {
    {frmdalsinast.txtnazev1, &ZaznamSfx::Nazev},
    {frmdalsinast.txjmeno, &ZaznamSfx::Jmeno},
};

struct SoundEditor
{
  Text& box;
  std::string ZaznamSfxZvuku::*value;
};

const SoundEditor soundEditors[] = {
    {frmdalsinast.txtzvuk, &ZaznamSfxZvuku::Soubor},     {frmdalsinast.txthlasitost, &ZaznamSfxZvuku::Hlasitost},
    {frmdalsinast.txthloubka, &ZaznamSfxZvuku::Hloubka}, {frmdalsinast.txtsance, &ZaznamSfxZvuku::Sance},
    {frmdalsinast.txtneznamy, &ZaznamSfxZvuku::Neznamy},
};

struct DelayEditor
{
  Text& box;
  std::int16_t ZaznamSfxZvuku::*value;
};

const DelayEditor delayEditors[] = {
    {frmdalsinast.txtmindelay, &ZaznamSfxZvuku::MinDelay},
    {frmdalsinast.txtmaxdelay, &ZaznamSfxZvuku::MaxDelay},
};

Field* const classFields[] = {
    &frmdalsinast.cmddel1, &frmdalsinast.cmddelall1, &frmdalsinast.txtnazev1,
    &frmdalsinast.txjmeno, &frmdalsinast.cmdadd2,
};

Field* const soundFields[] = {
    &frmdalsinast.cmddel2,    &frmdalsinast.cmddelall2, &frmdalsinast.txtzvuk,     &frmdalsinast.txthlasitost,
    &frmdalsinast.txthloubka, &frmdalsinast.txtsance,   &frmdalsinast.txtmindelay, &frmdalsinast.txtmaxdelay,
    &frmdalsinast.cmdopen,    &frmdalsinast.txtneznamy,
};

std::int16_t& soundCount()
{
  return frmdalsinast.PocetZvukuTridy.value;
}

ZaznamSfx& highlightedClass()
{
  return shared.Sfx.at(frmdalsinast.List1.index());
}

ZaznamSfxZvuku& highlightedSound()
{
  return highlightedClass().Zvuky.at(frmdalsinast.List2.index());
}

std::string soundRow(int number)
{
  return Texty(106) + " " + std::to_string(number);
}

void cmdadd1_Click()
{
  frmdalsinast.PridavaPolozku = true;
  attempt([] { shared.Sfx.redimPreserve(shared.PocetSfx + 1); });
  attempt([] { addMarked(frmdalsinast.List1, Texty(59) + std::to_string(shared.PocetSfx + 1)); });
  attempt([] { shared.PocetSfx = counted(shared.PocetSfx); });
  frmdalsinast.PridavaPolozku = false;
  enableAll(classFields, true);
}

void cmdadd2_Click()
{
  const int number = soundCount() + 1;
  attempt([&] { highlightedClass().Zvuky.redimPreserve(number); });
  attempt([&] { addMarked(frmdalsinast.List2, soundRow(number)); });
  attempt([&] { highlightedClass().Zvuky.at(number - 1).Zapnuto = flagOf(true); });
  attempt([] { soundCount() = counted(soundCount()); });
  attempt([] { frmdalsinast.List1.setTag(frmdalsinast.List1.index(), soundCount()); });
  enableAll(soundFields, true);
}

void cmddelall1_Click()
{
  shared.Sfx.reset();
  shared.PocetSfx = 0;
  soundCount() = 0;
  frmdalsinast.List1.clear();
  frmdalsinast.List2.clear();
  frmdalsinast.cmdadd1.enable(true);
  enableAll(classFields, false);
  enableAll(soundFields, false);
}

void cmddelall2_Click()
{
  frmdalsinast.List2.clear();
  attempt([] { highlightedClass().Zvuky.reset(); });
  soundCount() = 0;
  attempt([] { frmdalsinast.List1.setTag(frmdalsinast.List1.index(), 0); });
  enableAll(soundFields, false);
}

void cmddel1_Click()
{
  const int index = frmdalsinast.List1.index();
  attempt([&] { frmdalsinast.List1.remove(index); });
  closeGap(shared.Sfx, index, shared.PocetSfx);
  for (int i = 0; i < frmdalsinast.List1.count(); ++i)
    attempt([&] { frmdalsinast.List1.setTag(i, std::max(0, shared.Sfx.at(i).Zvuky.bound())); });
  attempt([] { shared.PocetSfx = counted(shared.PocetSfx, -1); });
  attempt([] { shared.Sfx.redimPreserve(shared.PocetSfx); });
  if (shared.PocetSfx <= 0)
    cmddelall1_Click();
}

void cmddel2_Click()
{
  const int index = frmdalsinast.List2.index();
  attempt([&] { frmdalsinast.List2.remove(index); });
  attempt([&] { closeGap(highlightedClass().Zvuky, index, soundCount()); });
  attempt([] { soundCount() = counted(soundCount(), -1); });
  attempt([] { frmdalsinast.List1.setTag(frmdalsinast.List1.index(), soundCount()); });
  attempt([] { highlightedClass().Zvuky.redimPreserve(soundCount()); });
  if (soundCount() <= 0)
    cmddelall2_Click();
}

void List1_Click()
{
  if (frmdalsinast.PridavaPolozku)
    return;
  for (const auto& [box, value] : classEditors)
    attempt([&] { box.set(highlightedClass().*value); });
  attempt([] { soundCount() = toInt16(frmdalsinast.List1.tag(frmdalsinast.List1.index())); });
  frmdalsinast.List2.clear();
  for (int i = 0; i < soundCount(); ++i)
    attempt(
        [&]
        {
          frmdalsinast.List2.add(soundRow(i + 1));
          frmdalsinast.List2.mark(i, highlightedClass().Zvuky.at(i).Zapnuto != 0);
        });
  enableAll(soundFields, soundCount() > 0);
}

void List2_Click()
{
  attempt([] { highlightedSound().Zapnuto = flagOf(frmdalsinast.List2.marked(frmdalsinast.List2.index())); });
  for (const auto& [box, value] : soundEditors)
    attempt([&] { box.set(highlightedSound().*value); });
  for (const auto& [box, value] : delayEditors)
    attempt([&] { box.set(std::to_string(highlightedSound().*value)); });
}

/// The game wants a point in a chance. Only the first comma turns into one, and the box keeps what was typed.
std::string withPoint(std::string text)
{
  if (const std::size_t comma = text.find(','); comma != std::string::npos)
    text[comma] = '.';
  return text;
}

} // namespace

void attachSoundEffects()
{
  frmdalsinast.cmdadd1.onClick = cmdadd1_Click;
  frmdalsinast.cmdadd2.onClick = cmdadd2_Click;
  frmdalsinast.cmddel1.onClick = cmddel1_Click;
  frmdalsinast.cmddel2.onClick = cmddel2_Click;
  frmdalsinast.cmddelall1.onClick = cmddelall1_Click;
  frmdalsinast.cmddelall2.onClick = cmddelall2_Click;
  frmdalsinast.cmdopen.onClick = [] { chooseSound(frmdalsinast.txtzvuk); };
  frmdalsinast.List1.onClick = List1_Click;
  frmdalsinast.List2.onClick = List2_Click;
  for (const ClassEditor& editor : classEditors)
    editor.box.onChange = [&editor] { attempt([&] { highlightedClass().*editor.value = editor.box.text(); }); };
  for (const SoundEditor& editor : soundEditors)
    editor.box.onChange = [&editor] { attempt([&] { highlightedSound().*editor.value = editor.box.text(); }); };
  frmdalsinast.txtsance.onChange = []
  { attempt([] { highlightedSound().Sance = withPoint(frmdalsinast.txtsance.text()); }); };
  for (const DelayEditor& editor : delayEditors)
    editor.box.onChange = [&editor]
    { attempt([&] { highlightedSound().*editor.value = toInteger(editor.box.text()); }); };
}

} // namespace tarvelin
