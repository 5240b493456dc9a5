#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The main window: mission name, eight tabs, programs bar and menus.
struct MainForm : Form
{
  MainForm() : Form("frmmain", "Tarvelin")
  {
    for (Field* field : std::initializer_list<Field*>{&seznamakci, &cmdvytvor, &cmdPrev, &cmdnext, &Check1,
                                                      &cmddelweapon, &cmddelall, &cmdsaveaddons, &cmdodebratradio,
                                                      &cmdodebratzvuk, &cmdodebrathudbu, &cmdadd, &cmdel, &txtzvuk})
      field->enable(false);
    Text1.each([](Text& field, int) { field.enable(false); });
    for (Field* field :
         std::initializer_list<Field*>{&strany, &strany3, &Picture1, &Picture2, &HScroll1, &Frame6, &Frame7})
      field->show(false);
  }

  using Frame = tarvelin::Group; // Group itself is one of the respawn options here

  // Chosen pages of a mission that is being read: file names.
  FormValue<std::string> StranaBrifing{this, "StranaBrifing"};
  FormValue<std::string> StranaOverview{this, "StranaOverview"};

  // While a task or a subtitle is being added its list keeps still.
  FormValue<bool> PridavaUkol{this, "PridavaUkol"};
  FormValue<bool> PridavaText{this, "PridavaText"};

  // Outside the tabs
  TabStrip SSTab1{
      this,
      "SSTab1",
      {"Brífing", "Overview", "Poznámky", " Informace o misi", "Nastavení mise", "Zbran", "Zvuky", "Skripty"}};
  Text txtJmenoMise{this, "txtJmenoMise", "Uživatelská mise"};
  Combo seznamakci{this, "seznamakci"};
  Command cmdvytvor{this, "cmdvytvor", "Vytvoř"};
  Command cmdend{this, "cmdend", "Konec"};
  Dialog CommonDialog1{this, "CommonDialog1"};

  // Programs bar; Image1(0) is the template of its icons
  Picture Picture1{this, "Picture1"};
  Picture Picture2{this, "Picture2"};
  Slider HScroll1{this, "HScroll1", 0, 32767};
  FieldArray<Picture> Image1{this, "Image1", {0}};

  // Labels of all tabs
  FieldArray<Label> Label1{this,
                           "Label1",
                           {{0, "Jméno:"},
                            {1, "Šířka:"},
                            {2, "Výška:"},
                            {3, "Společné zásobníky"},
                            {4, "Jméno:"},
                            {5, "Měsíc:"},
                            {6, "Den:"},
                            {7, "Hodina:"},
                            {8, "Minuta:"},
                            {9, "Počasí:"},
                            {10, "Mlha:"},
                            {11, "Předpověď počasí:"},
                            {12, "Předpověď mlhy:"},
                            {13, "Jméno brífingu:"},
                            {14, "Popis brífingu:"},
                            {15, "Spojenci partyzánů:"},
                            {16, "Nalezených značek:"},
                            {17, "Jméno značky:"},
                            {18, "Text značky:"},
                            {19, "Typ značky:"},
                            {20, "Titulek při načítání intra:"},
                            {21, "Titulek při načítání mise:"},
                            {22, "Maximální skóre:"},
                            {23, "Průměrné skóre:"},
                            {24, "Minimální skóre:"},
                            {25, "Jméno mise:"},
                            {26, "Zbraň"},
                            {27, "Kusů"},
                            {28, "Zásobníků"},
                            {29, "Zbraň"},
                            {30, "Kusů"},
                            {31, "Zásobníků"},
                            {32, "Zbraň"},
                            {33, "Kusů"},
                            {34, "Zásobníků"},
                            {35, "Zbraň"},
                            {36, "Kusů"},
                            {37, "Název:"},
                            {38, "Postava:"},
                            {39, "Text příslušící zvuku:"},
                            {40, "Text rádiové zprávy:"},
                            {41, "Název:"},
                            {42, "Název:"},
                            {43, "Na této kartě si můžete vytvořit vlastní rádiové zprávy, hudbu a zvuky"},
                            {46, "Počet zásobníků:"},
                            {47, "Jméno zbraně:"},
                            {48, "Titulek:"},
                            {49, "Počet kusů:"},
                            {50, "Jméno granátů:"},
                            {51, "Hlasitost / Hloubka"},
                            {52, "Hlasitost / Hloubka"},
                            {53, "Jméno:"},
                            {54, "Hlasitost / Hloubka"}}};

  // Fonts of txtBriefink, txtOverview, txtPoznamky
  FieldArray<Command> cmdF{this, "cmdF", {{0, "F"}, {1, "F"}, {2, "F"}}};

  // Tab 0: briefing
  Text txtBriefink{this, "txtBriefink"};
  Command cmddebrief{this, "cmddebrief", "Debrífing..."};
  Frame Frame1{this, "Frame1", "Úkoly mise"};
  List List1{this, "List1", List::Style::checkMarks};
  Text txtUkol{this, "txtUkol"};
  Command cmdpridat{this, "cmdpridat", "Přidat"};
  Command cmdodebrat{this, "cmdodebrat", "Odebrat"};
  Command cmdsmazvse{this, "cmdsmazvse", "Smaž vše"};
  Command cmdsmaztext{this, "cmdsmaztext", "Smaž text"};
  Combo jazykbrif{this, "jazykbrif"};
  Combo strany{this, "strany"};

  // Tab 1: overview
  Label lbljmeno{this, "lbljmeno"};
  Label lblsize{this, "lblsize"};
  Picture Picnahled{this, "Picnahled"};
  Text txtOverview{this, "txtOverview"};
  Command cmdopen{this, "cmdopen", "Otevřít..."};
  Command cmdnic{this, "cmdnic", "Bez obrázku"};
  Frame Frame11{this, "Frame11", "Velikost obrázku"};
  Combo Sirka{this, "Sirka"};
  Combo Vyska{this, "Vyska"};
  Combo jazykover{this, "jazykover"};

  // Tab 2: notes
  Picture Ostrovy{this, "Ostrovy"};
  Text txtPoznamky{this, "txtPoznamky"};
  Combo strany3{this, "strany3"};

  // Tab 3: what the mission says of itself
  Frame Frame2{this, "Frame2", "Mission General"};
  Text txtBrifingJmeno{this, "txtBrifingJmeno", "Nenalezeno"};
  Text txtBrifingPopis{this, "txtBrifingPopis", "Nenalezen"};
  Text txtSpojenci{this, "txtSpojenci", "Nenalezeno"};
  Frame Frame3{this, "Frame3", "Čas/datum/počasí"};
  Label lblMesic{this, "lblMesic"};
  Label lblDen{this, "lblDen"};
  Label lblHodina{this, "lblHodina"};
  Label lblMinuta{this, "lblMinuta"};
  Label Label9{this, "Label9", "Povětrnostní podmínky"};
  Label lblPocasi{this, "lblPocasi"};
  Label lblMlha{this, "lblMlha"};
  Label lblPredpovedPocasi{this, "lblPredpovedPocasi"};
  Label lblPredpovedMlhy{this, "lblPredpovedMlhy"};
  Frame Frame4{this, "Frame4", "Značky"};
  Label lblznackypocet{this, "lblznackypocet"};
  Label lblcisloznacky{this, "lblcisloznacky"};
  Label lblJmenoZnacky{this, "lblJmenoZnacky"};
  Label lblPopisZnacky{this, "lblPopisZnacky"};
  Label lbltypZnacky{this, "lbltypZnacky"};
  Command cmdPrev{this, "cmdPrev", "<"};
  Command cmdnext{this, "cmdnext", ">"};

  // Tab 4: mission settings
  Frame Frame5{this, "Frame5", "Hlavní nastavení:"};
  Check respawn{this, "respawn", "Povolit Oživení"};
  Check Skore{this, "Skore", "Povolit nastavení skóre"};
  Check Debrifing{this, "Debrifing", "Povolit Debrífing", 1};
  Check showGPS{this, "showGPS", "Ukázovat GPS", 1};
  Check showMap{this, "showMap", "Zobrazovat Mapu", 1};
  Check showCompass{this, "showCompass", "Zobrazovat Kompas", 1};
  Check showWatch{this, "showWatch", "Zobrazovat Hodinky", 1};
  Check showNotepad{this, "showNotepad", "Zobrazovat Poznámkový blok", 1};
  Frame Frame6{this, "Frame6", "Oživení:"};
  Label Label18{this, "Label18", "Druh oživení:"};
  OptionGroup respawnKinds;
  Option None{this, "None", respawnKinds, "Žádné"};
  Option Bird{this, "Bird", respawnKinds, "Jako racek"};
  Option Instant{this, "Instant", respawnKinds, "Okamžitě"};
  Option Group{this, "Group", respawnKinds, "Ve skupině"};
  Option Side{this, "Side", respawnKinds, "Na své straně"};
  Option Base{this, "Base", respawnKinds, "Na základně"};
  Label Label19{this, "Label19", "Prodleva oživení:"};
  Text txtcekat{this, "txtcekat", "10"};
  Label lblx{this, "lblx", "s"};
  Frame Frame7{this, "Frame7", "Nastavení skóre:"};
  Text minScore{this, "minScore", "0"};
  Text avgScore{this, "avgScore", "3000"};
  Text maxScore{this, "maxScore", "6000"};
  Text onloadintro{this, "onloadintro", "Uživatelská mise"};
  Text onloadmission{this, "onloadmission", "Někde v někdy"};
  Check chkvicestran{this, "chkvicestran", "Brífing pro více stran"};

  // Tab 5: weapons and magazines. The caption of a check is the class name that goes to the file.
  TabStrip SSTab2{this, "SSTab2", {"Západ", "Východ", "Add-ons", "Výbava"}};

  // Western weapons: check, pieces, magazines
  Check M16{this, "M16", "M16"};
  Text M16pocet{this, "M16pocet", "1"};
  Text M16naboje{this, "M16naboje", "4"};
  Check M16GrenadeLauncher{this, "M16GrenadeLauncher", "M16GrenadeLauncher"};
  Text M16GLpocet{this, "M16GLpocet", "1"};
  Text M16Glnaboje{this, "M16Glnaboje", "4"};
  Check M4{this, "M4", "M4"};
  Text M4pocet{this, "M4pocet", "1"};
  Text M4naboje{this, "M4naboje", "4"};
  Check HK{this, "HK", "HK"};
  Text HKpocet{this, "HKpocet", "1"};
  Text HKnaboje{this, "HKnaboje", "4"};
  Check M60{this, "M60", "M60"};
  Text M60pocet{this, "M60pocet", "1"};
  Text M60naboje{this, "M60naboje", "4"};
  Check M21{this, "M21", "M21"};
  Text M21pocet{this, "M21pocet", "1"};
  Text M21naboje{this, "M21naboje", "4"};
  Check LawLauncher{this, "LawLauncher", "LawLauncher"};
  Text LLpocet{this, "LLpocet", "1"};
  Text LLnaboje{this, "LLnaboje", "4"};
  Check CarlGustavLauncher{this, "CarlGustavLauncher", "CarlGustavLauncher"};
  Text CGLpocet{this, "CGLpocet", "1"};
  Text CGLnaboje{this, "CGLnaboje", "4"};
  Check AALauncher{this, "AALauncher", "AALauncher"};
  Text AALpocet{this, "AALpocet", "1"};
  Text AALnaboje{this, "AALnaboje", "4"};

  // Eastern weapons
  Check Ak74{this, "Ak74", "Ak74"};
  Text Ak74pocet{this, "Ak74pocet", "1"};
  Text Ak74naboje{this, "Ak74naboje", "4"};
  Check Ak74SU{this, "Ak74SU", "Ak74SU"};
  Text Ak74SUpocet{this, "Ak74SUpocet", "1"};
  Text Ak74Sunaboje{this, "Ak74Sunaboje", "4"};
  Check Ak74GrenadeLauncher{this, "Ak74GrenadeLauncher", "Ak74GrenadeLauncher"};
  Text Ak74GLpocet{this, "Ak74GLpocet", "1"};
  Text Ak74GLnaboje{this, "Ak74GLnaboje", "4"};
  Check Ak47{this, "Ak47", "Ak47"};
  Text Ak47pocet{this, "Ak47pocet", "1"};
  Text Ak47naboje{this, "Ak47naboje", "4"};
  Check Ak47CZ{this, "Ak47CZ", "Ak47CZ"};
  Text Ak47CZpocet{this, "Ak47CZpocet", "1"};
  Text Ak47CZnaboje{this, "Ak47CZnaboje", "4"};
  Check Ak47GrenadeLauncher{this, "Ak47GrenadeLauncher", "Ak47GrenadeLauncher"};
  Text Ak47GLpocet{this, "Ak47GLpocet", "1"};
  Text Ak47GLnaboje{this, "Ak47GLnaboje", "4"};
  Check SVDDragunov{this, "SVDDragunov", "SVDDragunov"};
  Text SVDDpocet{this, "SVDDpocet", "1"};
  Text SVDDnaboje{this, "SVDDnaboje", "4"};
  Check PK{this, "PK", "PK"};
  Text Pkpocet{this, "Pkpocet", "1"};
  Text Pknaboje{this, "Pknaboje", "4"};
  Check RPGLauncher{this, "RPGLauncher", "RPGLauncher"};
  Text RPGLpocet{this, "RPGLpocet", "1"};
  Text RPGLnaboje{this, "RPGLnaboje", "4"};
  Check AT4Launcher{this, "AT4Launcher", "AT4Launcher"};
  Text AT4Lpocet{this, "AT4Lpocet", "1"};
  Text AT4Lnaboje{this, "AT4Lnaboje", "4"};
  Check KLauncher{this, "KLauncher", "9K32Launcher"};
  Text K32Lpocet{this, "K32Lpocet", "1"};
  Text K32Lnaboje{this, "K32Lnaboje", "4"};
  Check Kozlice{this, "Kozlice", "Kozlice"};
  Text kozliceshell{this, "kozliceshell", "1"};
  Text kozliceball{this, "kozliceball", "4"};

  // Equipment
  Check HandGrenade{this, "HandGrenade", "HandGrenade"};
  Text HGpocet{this, "HGpocet", "20"};
  Check PipeBomb{this, "PipeBomb", "PipeBomb"};
  Text PBpocet{this, "PBpocet", "6"};
  Check Mine{this, "Mine", "Mine"};
  Text Mpocet{this, "Mpocet", "6"};
  Check Mortar{this, "Mortar", "Mortar"};
  Text Mortarpocet{this, "Mortarpocet", "5"};
  Check Flare{this, "Flare", "Flare"};
  Text Flarepocet{this, "Flarepocet", "10"};
  Check SmokeShell{this, "SmokeShell", "SmokeShell"};
  Text SSpocet{this, "SSpocet", "10"};
  Check FlareRed{this, "FlareRed", "FlareRed"};
  Text FRpocet{this, "FRpocet", "10"};
  Check SmokeShellRed{this, "SmokeShellRed", "SmokeShellRed"};
  Text SSRpocet{this, "SSRpocet", "10"};
  Check Binocular{this, "Binocular", "Binocular"};
  Text Bpocet{this, "Bpocet", "5"};
  Check NVGoggles{this, "NVGoggles", "NVGoggles"};
  Text NVpocet{this, "NVpocet", "5"};

  // Magazines that several rifles share
  Check M16zasobniky{this, "M16zasobniky", "Zás. M16"};
  Text txtM16zas{this, "txtM16zas", "4"};
  Check Ak74zasobniky{this, "Ak74zasobniky", "Zás. Ak74"};
  Text txtAk74zas{this, "txtAk74zas", "4"};
  Check Ak47zasobniky{this, "Ak47zasobniky", "Zás. Ak47"};
  Text txtAk47zas{this, "txtAk47zas", "4"};
  Check GrenadeLauncher{this, "GrenadeLauncher", "Grenade"};
  Text txtGrenade{this, "txtGrenade", "4"};

  // Add-on weapons: Text1 is title, class name, magazines (3), pieces (4), class of the grenades (5)
  List seznamzbrani{this, "seznamzbrani", List::Style::checkMarks};
  Command cmdaddweapon{this, "cmdaddweapon", "Přidat"};
  Command cmddelweapon{this, "cmddelweapon", "Smazat"};
  Command cmddelall{this, "cmddelall", "Smazat vše"};
  Command cmdsaveaddons{this, "cmdsaveaddons", "Uložit"};
  FieldArray<Text> Text1{this, "Text1", {0, 1, 3, 4, 5}};
  Check Check1{this, "Check1", "+ Granátomet"};

  // Tab 6: radio messages
  Frame Frame8{this, "Frame8", "Rádio:"};
  List seznamradia{this, "seznamradia", List::Style::checkMarks};
  Command cmdnacistradio{this, "cmdnacistradio", "Načíst zvukový soubor..."};
  Command cmdodebratradio{this, "cmdodebratradio", "Odebrat"};
  Text txtjmenoradia{this, "txtjmenoradia", "Rádio1"};
  Text txtradiojmeno{this, "txtradiojmeno", "Moje Radio"};
  Text txtpostava{this, "txtpostava", "aP"};
  Text txtradiohlasitost{this, "txtradiohlasitost", "+10"};
  Text txtradiohloubka{this, "txtradiohloubka", "1.0"};
  Combo radiojazyk{this, "radiojazyk"};
  Text txtradio{this, "txtradio", "Ahojky, tohle je moje rádiová \r\nzpráva číslo: 1\r\n"};

  // Tab 6: sounds
  Frame Frame9{this, "Frame9", "Zvuky:"};
  List seznamzvuku{this, "seznamzvuku", List::Style::checkMarks};
  Command cmdnacistzvuk{this, "cmdnacistzvuk", "Načíst zvukový soubor..."};
  Command cmdodebratzvuk{this, "cmdodebratzvuk", "Odebrat"};
  Text txtjmenozvuku{this, "txtjmenozvuku", "Zvuk1"};
  Text txtnazev{this, "txtnazev", "Muj zvuk"};
  Text txtzvukhlasitost{this, "txtzvukhlasitost", "-10"};
  Text txtzvukhloubka{this, "txtzvukhloubka", "1.0"};
  List seznamtextu{this, "seznamtextu", List::Style::checkMarks};
  Command cmdadd{this, "cmdadd", "Add"};
  Command cmdel{this, "cmdel", "Clear"};
  Combo zvukyjazyk{this, "zvukyjazyk"};
  Text txtzvuk{this, "txtzvuk", "Sem napište text který se zobrazí při přehrání zvuku. Může jich být i víc"};

  // Tab 6: music
  Frame Frame10{this, "Frame10", "Hudba:"};
  List seznamhudby{this, "seznamhudby", List::Style::checkMarks};
  Command cdmnactihudbu{this, "cdmnactihudbu", "Načíst zvukový soubor..."};
  Command cmdodebrathudbu{this, "cmdodebrathudbu", "Odebrat"};
  Text txtjmenohudby{this, "txtjmenohudby", "Hudba1"};
  Text txthudbanazev{this, "txthudbanazev", "Moje hudba"};
  Text txthudbahlasitost{this, "txthudbahlasitost", "+40"};
  Text txthudbahloubka{this, "txthudbahloubka", "1.0"};

  // Tab 7: scripts
  Tree prikazy{this, "prikazy"};
  FileList otevreneskripty{this, "otevreneskripty", "*.sqs*"};
  RichText skript{this, "skript"};
  Command cmdsetup{this, "cmdsetup", "Nastavení..."};
  Command cmdrefresh{this, "cmdrefresh", "Obarvit"};
  Command cmdsearch2{this, "cmdsearch2", "Najít..."};
  Command cmdsearch{this, "cmdsearch", "Rejstřík..."};
  Command cmdnew{this, "cmdnew", "Nový"};
  Command cmdsave{this, "cmdsave", "Uložit"};

  // Menus
  Menu mnufile{this, "mnufile", "Soubor"};
  Menu mnufileopen{this, "mnufileopen", "Otevřít..."};
  Menu mnushowfiles{this, "mnushowfiles", "Náhled souborů..."};
  Menu mnuwavogg{this, "mnuwavogg", "Wav --> Ogg"};
  Menu mnuwavlip{this, "mnuwavlip", "Wav --> Lip"};
  Menu mnuwsswav{this, "mnuwsswav", "Wss --> Wav"};
  Menu mnuwavwss{this, "mnuwavwss", "Wav --> Wss"};
  Menu mnucara{this, "mnucara", "-"};
  Menu mnufileend{this, "mnufileend", "Konec"};
  Menu mnuinfo{this, "mnuinfo", "Informace"};
  Menu mnuabout2{this, "mnuabout2", "O Aplikaci..."};
  Menu mnuaboutflashpoint{this, "mnuaboutflashpoint", "O Operaci Flashpoint..."};
  Menu mnuukazlog{this, "mnuukazlog", "Ukázat Log soubor..."};
  Menu mnunet{this, "mnunet", "Odkazy na Internet..."};
  Menu mnunastroje{this, "mnunastroje", "Nástroje"};
  Menu mnuksicht{this, "mnuksicht", "Profily postav..."};
  Menu mnucampaignedit{this, "mnucampaignedit", "Editor Kampaně..."};
  Menu mnucinfigcpp{this, "mnucinfigcpp", "Config.cpp editor..."};
  Menu mnudalsizvuky{this, "mnudalsizvuky", "Další nastavení pro misi..."};
  Menu mnuNastaveni{this, "mnuNastaveni", "Nastavení"};
  Menu mnusetobec{this, "mnusetobec", "Obecné..."};
  Menu mnueditskript{this, "mnueditskript", "Editor skriptů..."};
  Menu mnusetupLanguage{this, "mnusetupLanguage", "Jazyk..."};
};
inline MainForm frmmain;

} // namespace tarvelin
