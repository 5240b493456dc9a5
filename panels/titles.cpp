#include "panels/titles.h"

#include "core/forms/frmdalsinast.h"
#include "core/forms/frmopen.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "panels/row_steps.h"
#include "platform/files.h"
#include "script/word_search.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace tarvelin
{

namespace
{

constexpr std::int16_t textControl = 0;
constexpr std::int16_t pictureControl = 1;
constexpr std::int16_t choosesTitlePicture = 9;
constexpr int sliderScale = 1000; // sliders go to 1000, a screen to 1
constexpr int colourScale = 4;    // a component of a record is four times that of a colour
constexpr int maxAlpha = 100;

struct TitleEditor
{
  Text& box;
  std::string ZaznamTitulu::*value;
};

const TitleEditor titleEditors[] = {
    {frmdalsinast.txtnazev3, &ZaznamTitulu::Trida},
    {frmdalsinast.txtjmeno, &ZaznamTitulu::Nazev},
};

struct ControlEditor
{
  Text& box;
  std::string TitulPrvek::*value;
};

const ControlEditor controlEditors[] = {
    {frmdalsinast.txtnazev2, &TitulPrvek::Trida},
    {frmdalsinast.txttext, &TitulPrvek::Text},
};

struct SliderEditor
{
  Slider& slider;
  float TitulPrvek::*value;
};

const SliderEditor sliderEditors[] = {
    {frmdalsinast.x, &TitulPrvek::X},
    {frmdalsinast.y, &TitulPrvek::Y},
    {frmdalsinast.w, &TitulPrvek::W},
    {frmdalsinast.h, &TitulPrvek::H},
};

struct ColourEditor
{
  Picture& area;
  Text& alpha;
  BarvaPrvku TitulPrvek::*value;
};

const ColourEditor colourEditors[] = {
    {frmdalsinast.picbackcolor, frmdalsinast.cba, &TitulPrvek::BarvaPozadi},
    {frmdalsinast.pictextcolor, frmdalsinast.cta, &TitulPrvek::BarvaTextu},
};

Field* const titleFields[] = {
    &frmdalsinast.txtnazev3,   &frmdalsinast.txtjmeno,  &frmdalsinast.pohyb,      &frmdalsinast.txtdoba,
    &frmdalsinast.cmdodebrat1, &frmdalsinast.cmdelvse1, &frmdalsinast.cmdpridat2,
};

// What goes on and off with the controls of a title. The class name is apart: clearing the controls leaves it on.
Field* const controlFields[] = {
    &frmdalsinast.cmdodebrat2,
    &frmdalsinast.cmdelvse2,
    &frmdalsinast.Option1,
    &frmdalsinast.Option2,
    &frmdalsinast.txtstyl,
    &frmdalsinast.txttext,
    &frmdalsinast.x,
    &frmdalsinast.y,
    &frmdalsinast.w,
    &frmdalsinast.h,
    &frmdalsinast.picbackcolor,
    &frmdalsinast.pictextcolor,
    &frmdalsinast.txtvelikost,
    &frmdalsinast.pisma,
    &frmdalsinast.cba,
    &frmdalsinast.cta,
};

/// A number as a record keeps it. Throws 6 when it is out of range.
float single(double value)
{
  if (std::fabs(value) > std::numeric_limits<float>::max())
    throw Failure(Fault::overflow);
  return static_cast<float>(value);
}

/// The shortest text that gives the same number back.
std::string singleText(float value)
{
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

std::int16_t& controlCount()
{
  return frmdalsinast.PocetPrvkuTitulu.value;
}

ZaznamTitulu& highlightedTitle()
{
  return shared.Tituly.at(frmdalsinast.List3.index());
}

TitulPrvek& highlightedControl()
{
  return highlightedTitle().Prvky.at(frmdalsinast.List4.index());
}

/// The editors of controls keep still while the title has none.
bool hasControls()
{
  return attempt([] { highlightedTitle(); }) && highlightedTitle().Prvky.dimensioned();
}

std::string controlRow(int number)
{
  return Texty(109) + " " + std::to_string(number);
}

void enableControls(bool on)
{
  enableAll(controlFields, on);
  frmdalsinast.txtnazev2.enable(on);
  if (!on)
    frmdalsinast.cmdopen3.enable(false); // a picture alone turns it on
}

// Titles

void cmdpridat1_Click()
{
  frmdalsinast.PridavaPolozku = true;
  attempt([] { shared.Tituly.redimPreserve(shared.PocetTitulu + 1); });
  attempt([] { addMarked(frmdalsinast.List3, Texty(108) + " " + std::to_string(shared.PocetTitulu + 1)); });
  attempt([] { shared.PocetTitulu = counted(shared.PocetTitulu); });
  frmdalsinast.PridavaPolozku = false;
  enableAll(titleFields, true);
}

void cmdelvse1_Click()
{
  shared.Tituly.reset();
  shared.PocetTitulu = 0;
  controlCount() = 0;
  frmdalsinast.List3.clear();
  frmdalsinast.List4.clear();
  enableAll(titleFields, false);
  enableControls(false);
}

void cmdodebrat1_Click()
{
  const int index = frmdalsinast.List3.index();
  attempt([&] { frmdalsinast.List3.remove(index); });
  closeGap(shared.Tituly, index, shared.PocetTitulu);
  for (int i = 0; i < frmdalsinast.List3.count(); ++i)
    attempt([&] { frmdalsinast.List3.setTag(i, std::max(0, shared.Tituly.at(i).Prvky.bound())); });
  attempt([] { shared.PocetTitulu = counted(shared.PocetTitulu, -1); });
  attempt([] { shared.Tituly.redimPreserve(shared.PocetTitulu); });
  if (shared.PocetTitulu <= 0)
    cmdelvse1_Click();
}

void List3_Click()
{
  if (frmdalsinast.PridavaPolozku)
    return;
  for (const auto& [box, value] : titleEditors)
    attempt([&] { box.set(highlightedTitle().*value); });
  attempt([] { frmdalsinast.pohyb.set(highlightedTitle().Pohyb != 0); });
  attempt([] { frmdalsinast.txtdoba.set(singleText(highlightedTitle().Doba)); });
  attempt([] { controlCount() = toInt16(frmdalsinast.List3.tag(frmdalsinast.List3.index())); });
  frmdalsinast.List4.clear();
  for (int i = 0; i < controlCount(); ++i)
    attempt(
        [&]
        {
          frmdalsinast.List4.add(controlRow(i + 1));
          frmdalsinast.List4.mark(i, highlightedTitle().Prvky.at(i).Zapnuto != 0);
        });
  enableControls(controlCount() > 0);
}

// Controls of the title

void cmdpridat2_Click()
{
  const int number = controlCount() + 1;
  attempt([&] { highlightedTitle().Prvky.redimPreserve(number); });
  attempt([&] { addMarked(frmdalsinast.List4, controlRow(number)); });
  attempt([&] { highlightedTitle().Prvky.at(number - 1).Zapnuto = flagOf(true); });
  attempt([] { controlCount() = counted(controlCount()); });
  attempt([] { frmdalsinast.List3.setTag(frmdalsinast.List3.index(), controlCount()); });
  enableControls(true);
}

void cmdelvse2_Click()
{
  frmdalsinast.List4.clear();
  attempt([] { highlightedTitle().Prvky.reset(); });
  controlCount() = 0;
  attempt([] { frmdalsinast.List3.setTag(frmdalsinast.List3.index(), 0); });
  enableAll(controlFields, false);
  frmdalsinast.cmdopen3.enable(false);
  frmdalsinast.txtnazev.enable(
      false); // the box of the environment sounds, not that of the control: so it has always been
}

void cmdodebrat2_Click()
{
  const int index = frmdalsinast.List4.index();
  attempt([&] { frmdalsinast.List4.remove(index); });
  attempt([&] { closeGap(highlightedTitle().Prvky, index, controlCount()); });
  attempt([] { controlCount() = counted(controlCount(), -1); });
  attempt([] { frmdalsinast.List3.setTag(frmdalsinast.List3.index(), controlCount()); });
  attempt([] { highlightedTitle().Prvky.redimPreserve(controlCount()); });
  if (controlCount() <= 0)
    cmdelvse2_Click();
}

const char* ownStyle(bool picture)
{
  return picture ? "48" : "0"; // 48 is the game's style of pictures
}

void chooseKind(std::int16_t kind)
{
  const bool picture = kind == pictureControl;
  attempt([&] { highlightedControl().Druh = kind; });
  frmdalsinast.cmdopen3.enable(picture);
  frmdalsinast.txtstyl.set(ownStyle(picture));
}

void txtstyl_Change()
{
  Text& box = frmdalsinast.txtstyl;
  if (box.empty() || !hasControls())
    return;
  attempt(
      [&]
      {
        if (val(box.text()) >= 0)
          return;
        if (frmdalsinast.Option2.value())
          box.set(ownStyle(true));
        else if (frmdalsinast.Option1.value())
          box.set(ownStyle(false));
      });
  attempt([&] { highlightedControl().Styl = numberText(val(box.text())); });
}

void storeAlpha(const ColourEditor& editor)
{
  Text& box = editor.alpha;
  if (box.empty() || !hasControls())
    return;
  attempt(
      [&]
      {
        if (val(box.text()) > maxAlpha)
          box.set(std::to_string(maxAlpha));
        else if (val(box.text()) < 0)
          box.set("0");
      });
  attempt([&] { (highlightedControl().*editor.value).Alfa = single(val(box.text())); });
}

/// A cancelled choice stores the colour that was chosen last.
void chooseColour(const ColourEditor& editor)
{
  attempt([] { frmdalsinast.CommonDialog1.showColor(); });
  const Colour colour = frmdalsinast.CommonDialog1.color;
  const auto component = [&](int shift) { return static_cast<float>((colour >> shift & 0xFF) * colourScale); };
  attempt(
      [&]
      {
        BarvaPrvku& stored = highlightedControl().*editor.value;
        stored.Cervena = component(0);
        stored.Zelena = component(8);
        stored.Modra = component(16);
      });
  editor.area.setColor(colour);
}

Colour colourOf(const BarvaPrvku& stored)
{
  const auto component = [](float value, int shift)
  { return static_cast<Colour>(std::clamp(std::lround(value / colourScale), 0L, 255L)) << shift; };
  return component(stored.Cervena, 0) | component(stored.Zelena, 8) | component(stored.Modra, 16);
}

void storeSlider(const SliderEditor& editor)
{
  attempt([&] { highlightedControl().*editor.value = static_cast<float>(editor.slider.value()) / sliderScale; });
}

void selectFont(const std::string& name)
{
  attempt([&] { frmdalsinast.pisma.select(BNajdi(0, frmdalsinast.pisma.count() - 1, name, frmdalsinast.pisma)); });
}

/// Shows the kind and the style of a control. Choosing the option resets the style, so it is put back behind it; a
/// control that never had one takes that of its kind.
void showKind(const TitulPrvek& control)
{
  const bool picture = control.Druh == pictureControl;
  (picture ? frmdalsinast.Option2 : frmdalsinast.Option1).set(true);
  frmdalsinast.cmdopen3.enable(picture);
  if (picture)
    attempt([&] { frmdalsinast.picnahled.load(control.Text); });
  else
    frmdalsinast.picnahled.clear();
  const std::string style = control.Styl.empty() ? ownStyle(picture) : control.Styl;
  frmdalsinast.txtstyl.set(style);
  attempt([&] { highlightedControl().Styl = style; });
}

void List4_Click()
{
  attempt([] { highlightedControl().Zapnuto = flagOf(frmdalsinast.List4.marked(frmdalsinast.List4.index())); });
  TitulPrvek control; // a copy: what is filled stores at once
  if (!attempt([&] { control = highlightedControl(); }))
    return;
  showKind(control);
  for (const auto& [box, value] : controlEditors)
    box.set(control.*value);
  for (const auto& [slider, value] : sliderEditors)
    attempt([&] { slider.set(toInt16(static_cast<double>(control.*value) * sliderScale)); });
  frmdalsinast.txtvelikost.set(singleText(control.Velikost));
  for (const auto& [area, alpha, value] : colourEditors)
    area.setColor(colourOf(control.*value));
  selectFont(control.Pismo);
  for (const auto& [area, alpha, value] : colourEditors)
    alpha.set(singleText((control.*value).Alfa));
}

void pisma_Click()
{
  if (frmdalsinast.pisma.index() >= 0)
    attempt([] { highlightedControl().Pismo = frmdalsinast.pisma.text(); });
}

/// The picture picker keeps its choice as the overview's picture, which is put back here.
void cmdopen3_Click()
{
  const std::string overviewPicture = std::exchange(shared.CestaObrazku, {});
  const std::int16_t mode = std::exchange(shared.RezimOtevreni, choosesTitlePicture);
  Frmopen.ProOblicej = false;
  Frmopen.ProKampan = false;
  attempt([] { Frmopen.showModal(); });
  const std::string chosen = std::exchange(shared.CestaObrazku, overviewPicture);
  shared.RezimOtevreni = mode;
  if (chosen.empty())
    return;
  frmdalsinast.txttext.set(chosen);
  attempt([&] { frmdalsinast.picnahled.load(chosen); });
}

} // namespace

void readFonts(const std::string& path)
{
  if (!platform::fileExists(path))
    return ZapisLog("Chybí soubor: " + path + std::string(crlf));
  frmdalsinast.pisma.clear();
  LineReader fonts(path);
  while (!fonts.atEnd())
    frmdalsinast.pisma.add(fonts.next());
  attempt([] { frmdalsinast.pisma.select(0); });
}

void attachTitles()
{
  frmdalsinast.cmdpridat1.onClick = cmdpridat1_Click;
  frmdalsinast.cmdodebrat1.onClick = cmdodebrat1_Click;
  frmdalsinast.cmdelvse1.onClick = cmdelvse1_Click;
  frmdalsinast.cmdpridat2.onClick = cmdpridat2_Click;
  frmdalsinast.cmdodebrat2.onClick = cmdodebrat2_Click;
  frmdalsinast.cmdelvse2.onClick = cmdelvse2_Click;
  frmdalsinast.List3.onClick = List3_Click;
  frmdalsinast.List4.onClick = List4_Click;
  frmdalsinast.Option1.onClick = [] { chooseKind(textControl); };
  frmdalsinast.Option2.onClick = [] { chooseKind(pictureControl); };
  frmdalsinast.cmdopen3.onClick = cmdopen3_Click;
  frmdalsinast.txtstyl.onChange = txtstyl_Change;
  frmdalsinast.pisma.onClick = pisma_Click;
  frmdalsinast.pohyb.onClick = [] { attempt([] { highlightedTitle().Pohyb = frmdalsinast.pohyb.checked() ? 1 : 0; }); };
  frmdalsinast.txtdoba.onChange = []
  { attempt([] { highlightedTitle().Doba = single(val(frmdalsinast.txtdoba.text())); }); };
  frmdalsinast.txtvelikost.onChange = []
  { attempt([] { highlightedControl().Velikost = single(val(frmdalsinast.txtvelikost.text())); }); };
  for (const TitleEditor& editor : titleEditors)
    editor.box.onChange = [&editor] { attempt([&] { highlightedTitle().*editor.value = editor.box.text(); }); };
  for (const ControlEditor& editor : controlEditors)
    editor.box.onChange = [&editor] { attempt([&] { highlightedControl().*editor.value = editor.box.text(); }); };
  for (const SliderEditor& editor : sliderEditors)
  {
    editor.slider.onChange = [&editor] { storeSlider(editor); };
    editor.slider.onScroll = [&editor] { storeSlider(editor); };
  }
  for (const ColourEditor& editor : colourEditors)
  {
    editor.area.onClick = [&editor] { chooseColour(editor); };
    editor.alpha.onChange = [&editor] { storeAlpha(editor); };
  }
}

} // namespace tarvelin
