#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Identity profiles of the mission, or of the campaign as a step of its wizard.
struct IdentityForm : Form
{
  IdentityForm() : Form("Form2", "Nastavení profilů postav do mise")
  {
    for (Field* field :
         std::initializer_list<Field*>{&cmdelall, &Text1, &Text2, &ksichty, &bryle, &hlasy, &List1, &Command1})
      field->enable(false);
    for (Field* field : std::initializer_list<Field*>{&cmdPrev, &List1, &lbljmeno})
      field->show(false);
  }

  Text txtnazev{this, "txtnazev", "MojePostava"};
  Command cmdadd{this, "cmdadd", "Přidat"};
  Command cmdelall{this, "cmdelall", "Smazat vše"};
  List seznamidentit{this, "seznamidentit", List::Style::checkMarks};
  Label Label1{this, "Label1", "Jméno hráče:"};
  Text Text1{this, "Text1", "Vanderlin"};
  Label Label2{this, "Label2", "Obličej:"};
  Combo ksichty{this, "ksichty"};
  Picture Image1{this, "Image1"};
  Command Command1{this, "Command1", "Načíst..."};
  Label lbljmeno{this, "lbljmeno"};
  List List1{this, "List1"};
  Label Label3{this, "Label3", "Brýle:"};
  Combo bryle{this, "bryle"};
  Label Label4{this, "Label4", "Hlas:"};
  Combo hlasy{this, "hlasy"};
  Label Label5{this, "Label5", "Výška hlasu:"};
  Text Text2{this, "Text2", "1"};
  Check chkpouzithrace{this, "chkpouzithrace", "Použít tyto postavy"};
  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdOk{this, "cmdOk", "Ok"};
};
inline IdentityForm Form2;

} // namespace tarvelin
