#include "core/default_texts.h"

#include "core/attempt.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmmain.h"
#include "core/shared.h"

namespace tarvelin
{

namespace
{

struct DefaultText
{
  Text& field;
  int text; ///< entry of Texty
};

void setAll(std::initializer_list<DefaultText> texts)
{
  for (const auto& [field, text] : texts)
    attempt([&] { field.set(Texty(text)); });
}

} // namespace

void setMissionTexts()
{
  setAll({
      {frmmain.txtBriefink, 7},      {frmmain.txtOverview, 8},      {frmmain.txtPoznamky, 9},
      {frmmain.txtJmenoMise, 53},    {frmmain.onloadintro, 53},     {frmmain.txtUkol, 54},
      {frmmain.txtBrifingJmeno, 55}, {frmmain.txtBrifingPopis, 55}, {frmmain.txtSpojenci, 55},
      {frmmain.onloadmission, 56},   {frmmain.txtjmenoradia, 57},   {frmmain.txtradiojmeno, 58},
      {frmmain.txtjmenozvuku, 59},   {frmmain.txtnazev, 60},        {frmmain.txtjmenohudby, 61},
      {frmmain.txthudbanazev, 62},   {frmmain.txtradio, 63},        {frmmain.txtzvuk, 64},
      {frmmain.skript, 85},
  });
}

void setCampaignTexts()
{
  setAll({
      {frmcamp5.txtjmenoradia, 57},
      {frmcamp5.txtradiojmeno, 58},
      {frmcamp5.txtjmenozvuku, 59},
      {frmcamp5.txtnazev, 60},
      {frmcamp5.txtjmenohudby, 61},
      {frmcamp5.txthudbanazev, 62},
      {frmcamp5.txtradio, 63},
      {frmcamp5.txtzvuk, 64},
  });
}

} // namespace tarvelin
