#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Further mission settings: sound effects, environment sounds, titles, stringtable, add-ons, readme.
struct FurtherSettingsForm : Form
{
  FurtherSettingsForm() : Form("frmdalsinast", "Další nastavení pro misi nebo kampaň")
  {
    for (Field* field : std::initializer_list<Field*>{
             // environment sounds
             &Command3, &Command4, &txtnazev, &txtrozname, &txtzvukroz, &txtzvuk2roz, &txthlasitost1, &txthloubka1,
             &txthlasitost2, &txthloubka2, &cmdopen1, &Command5,
             // sound effects
             &cmddel1, &cmddelall1, &txtnazev1, &txjmeno, &cmdadd2, &cmddel2, &cmddelall2, &txtzvuk, &cmdopen,
             &txthlasitost, &txthloubka, &txtsance, &txtneznamy, &txtmindelay, &txtmaxdelay,
             // titles
             &cmdodebrat1, &cmdelvse1, &txtnazev3, &txtjmeno, &pohyb, &txtdoba, &cmdpridat2, &cmdodebrat2, &cmdelvse2,
             &Option1, &Option2, &txtnazev2, &txtstyl, &txttext, &cmdopen3, &x, &y, &w, &h, &picbackcolor, &cba,
             &pictextcolor, &cta, &txtvelikost, &pisma})
      field->enable(false);
  }

  FormValue<bool> PridavaPolozku{this, "PridavaPolozku"};             // while a row is being added its list keeps still
  FormValue<std::int16_t> PocetZvukuTridy{this, "PocetZvukuTridy"};   // sounds of the class on show
  FormValue<std::int16_t> PocetPrvkuTitulu{this, "PocetPrvkuTitulu"}; // controls of the title on show

  TabStrip SSTab1{this, "SSTab1", {"Sfx", "Zvuky prostředí", "Tituly", "Stringtable", "Addony", "Readme"}};
  Command Command1{this, "Command1", "Ok"};
  Dialog CommonDialog1{this, "CommonDialog1"};

  // Sound effects: classes
  List List1{this, "List1", List::Style::checkMarks};
  Command cmdadd1{this, "cmdadd1", "Add"};
  Command cmddel1{this, "cmddel1", "Delete"};
  Command cmddelall1{this, "cmddelall1", "Delete All"};
  Label Label16{this, "Label16", "Jméno:"};
  Text txtnazev1{this, "txtnazev1"};
  Label Label17{this, "Label17", "Název:"};
  Text txjmeno{this, "txjmeno"};

  // Sound effects: sounds of the class
  List List2{this, "List2", List::Style::checkMarks};
  Command cmdadd2{this, "cmdadd2", "Add"};
  Command cmddel2{this, "cmddel2", "Delete"};
  Command cmddelall2{this, "cmddelall2", "Delete All"};
  Label lblzvuk{this, "lblzvuk", "Zvuk:"};
  Text txtzvuk{this, "txtzvuk"};
  Command cmdopen{this, "cmdopen", "..."};
  Label Label18{this, "Label18", "Hlasitost / Hloubka"};
  Text txthlasitost{this, "txthlasitost"};
  Text txthloubka{this, "txthloubka"};
  Label lblsance{this, "lblsance", "Šance:"};
  Text txtsance{this, "txtsance"};
  Label lblunknown{this, "lblunknown", "Neznámý údaj:"};
  Text txtneznamy{this, "txtneznamy"};
  Label lblmindelay{this, "lblmindelay", "Nejkratší prodleva:"};
  Text txtmindelay{this, "txtmindelay"};
  Label lblmaxdelay{this, "lblmaxdelay", "Nejdelší prodleva:"};
  Text txtmaxdelay{this, "txtmaxdelay"};

  // Environment sounds
  List seznamrozzvuku{this, "seznamrozzvuku", List::Style::checkMarks};
  Command Command2{this, "Command2", "Přidat"};
  Command Command3{this, "Command3", "Odebrat"};
  Command Command4{this, "Command4", "Odebrat vše"};
  Label Label1{this, "Label1", "Jméno:"};
  Text txtnazev{this, "txtnazev"};
  Label Label2{this, "Label2", "Název:"};
  Text txtrozname{this, "txtrozname"};
  Label lblzvukroz{this, "lblzvukroz", "Denní zvuk:"};
  Text txtzvukroz{this, "txtzvukroz"};
  Command cmdopen1{this, "cmdopen1", "..."};
  Label Label3{this, "Label3", "Hlasitost / Hloubka"};
  Text txthlasitost1{this, "txthlasitost1"};
  Text txthloubka1{this, "txthloubka1"};
  Label lblzvuk2roz{this, "lblzvuk2roz", "Noční zvuk:"};
  Text txtzvuk2roz{this, "txtzvuk2roz"};
  Command Command5{this, "Command5", "..."};
  Text txthlasitost2{this, "txthlasitost2"};
  Text txthloubka2{this, "txthloubka2"};

  // Titles
  Label Label5{this, "Label5", "Tituly:"};
  List List3{this, "List3", List::Style::checkMarks};
  Command cmdpridat1{this, "cmdpridat1", "Přidat"};
  Command cmdodebrat1{this, "cmdodebrat1", "Odebrat"};
  Command cmdelvse1{this, "cmdelvse1", "Odebrat vše"};
  Label Label21{this, "Label21", "Jméno:"};
  Text txtnazev3{this, "txtnazev3"};
  Label Label22{this, "Label22", "Název:"};
  Text txtjmeno{this, "txtjmeno"};
  Check pohyb{this, "pohyb", "Povolit pohyb"};
  Label Label19{this, "Label19", "Doba zobrazení:"};
  Text txtdoba{this, "txtdoba"};

  // Titles: controls of the title
  Label Label6{this, "Label6", "Složky:"};
  List List4{this, "List4", List::Style::checkMarks};
  Command cmdpridat2{this, "cmdpridat2", "Přidat"};
  Command cmdodebrat2{this, "cmdodebrat2", "Odebrat"};
  Command cmdelvse2{this, "cmdelvse2", "Odebrta vše"};
  OptionGroup controlKinds;
  Option Option1{this, "Option1", controlKinds, "Text"};
  Option Option2{this, "Option2", controlKinds, "Obrázek"};
  Label Label23{this, "Label23", "Jméno:"};
  Text txtnazev2{this, "txtnazev2"};
  Label Label7{this, "Label7", "Styl:"};
  Text txtstyl{this, "txtstyl"};
  Label Label8{this, "Label8", "Text:"};
  Text txttext{this, "txttext"};
  Command cmdopen3{this, "cmdopen3", "..."};
  Label Label9{this, "Label9", "Pozadí"};
  Picture picbackcolor{this, "picbackcolor"};
  Label Label10{this, "Label10", "Alpha:"};
  Text cba{this, "cba"};
  Label Label11{this, "Label11", "Text"};
  Picture pictextcolor{this, "pictextcolor"};
  Label Label12{this, "Label12", "Alpha:"};
  Text cta{this, "cta"};
  Label Label20{this, "Label20", "Velikost"};
  Text txtvelikost{this, "txtvelikost"};
  Label Label13{this, "Label13", "Písmo:"};
  Combo pisma{this, "pisma"};
  Label Label14{this, "Label14", "Umístění:"};
  Slider x{this, "x", 0, 1000};
  Slider y{this, "y", 0, 1000};
  Label Label15{this, "Label15", "Rozměry:"};
  Slider w{this, "w", 0, 1000};
  Slider h{this, "h", 0, 1000};
  Picture picnahled{this, "picnahled"};

  // Stringtable
  RichText txtstringtable{this, "txtstringtable"};
  Command Command6{this, "Command6", "Add Text"};

  // Add-ons
  Label Label4{this, "Label4", "Addony nalezené v misi:"};
  List addony{this, "addony"};
  Command Command9{this, "Command9", "Search addons"};

  // Readme
  RichText txtdokument{this, "txtdokument"};
  Command Command8{this, "Command8", "Save"};
};
inline FurtherSettingsForm frmdalsinast;

} // namespace tarvelin
