#include "script/editor.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmeditsetup.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnajit.h"
#include "core/forms/frmrejstrik.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "script/colouring.h"

namespace tarvelin
{

namespace
{

/// Logs what befell a script's file.
auto logged(std::string_view what, const std::string& path)
{
  return [what, path](const Failure& failure)
  { ZapisLog(std::string(what) + path + ", " + failureText(failure) + std::string(crlf)); };
}

void skript_Change()
{
  if (shared.PovolBarvy != 0 && shared.Nastaveni.UkazovatBarvy != 0)
    colourTyped(frmmain.skript);
}

void otevreneskripty_Click()
{
  const FileList& files = frmmain.otevreneskripty;
  const std::string path = files.path() + "/" + files.selected();
  const BulkChange bulk(frmmain.skript); // it is shown with its colours at once
  shared.PovolBarvy = 0;
  frmmain.skript.set("");
  attempt([&] { NactiSkript(path, frmmain.skript); }, logged("Nastala chyba při načítání skriptu z: ", path));
  if (shared.Nastaveni.UkazovatBarvy != 0)
    ObarviSkript(frmmain.skript);
  shared.CestaSkriptu = path;
  shared.PovolBarvy = -1;
}

void cmdnew_Click()
{
  shared.CestaSkriptu.clear();
  frmmain.skript.set("");
}

void cmdsave_Click()
{
  if (shared.CestaSkriptu.empty())
  {
    const auto name = desk().prompt(Texty(90), Texty(89), "");
    if (!name)
      return;
    shared.CestaSkriptu = shared.CestaMise + "/" + *name + ".sqs";
  }
  attempt([] { UlozText(shared.CestaSkriptu, frmmain.skript.text()); },
          logged("Nastala chyba při ukládání skriptu do: ", shared.CestaSkriptu));
  frmmain.otevreneskripty.refresh();
}

void cmdrefresh_Click()
{
  if (shared.Nastaveni.UkazovatBarvy == 0)
    return;
  ObarviSkript(frmmain.skript);
  shared.PovolBarvy = -1;
}

void prikazy_Click()
{
  const Tree::Node* const node = frmmain.prikazy.selected();
  const bool command = node && node->parent && node->parent->parent; // headings and sub-headings are none
  if (!command || !node->children.empty())
    return;
  shared.PovolBarvy = -1;
  frmmain.skript.replaceSelection(trim(node->text) + " ");
}

} // namespace

void NactiSkript(const std::string& path, RichText& box)
{
  std::string lines;
  for (LineReader file(path); !file.atEnd();)
    lines.append(file.next()).append(crlf);
  box.append(lines);
}

void UlozText(const std::string& path, const std::string& text)
{
  writeText(path, text);
}

void attachEditor()
{
  frmmain.skript.onChange = skript_Change;
  frmmain.otevreneskripty.onClick = otevreneskripty_Click;
  frmmain.cmdnew.onClick = cmdnew_Click;
  frmmain.cmdsave.onClick = cmdsave_Click;
  frmmain.cmdrefresh.onClick = cmdrefresh_Click;
  frmmain.prikazy.onClick = prikazy_Click;
  frmmain.cmdsearch.onClick = [] { frmrejstrik.show(); };
  frmmain.cmdsearch2.onClick = [] { frmnajit.show(); };
  frmmain.cmdsetup.onClick = [] { frmeditsetup.show(); };
  frmmain.mnueditskript.onClick = [] { frmeditsetup.show(); };
}

} // namespace tarvelin
