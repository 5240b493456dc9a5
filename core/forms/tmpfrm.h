#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Scratch fields, never shown. A generated file is built up in one of the texts, each of which has one owner.
struct ScratchForm : Form
{
  ScratchForm() : Form("tmpfrm", "Form1") {}

  RichText tmptxt{this, "tmptxt"};   // a briefing
  RichText tmptxt1{this, "tmptxt1"}; // an overview
  RichText tmptxt2{this, "tmptxt2"}; // a mission's description
  Text tmptxt3{this, "tmptxt3"};     // a stringtable
  Text tmpcamp{this, "tmpcamp"};     // a campaign's description
  List zasobnik{this, "zasobnik", List::Style::sorted};
  FolderList tmpdir{this, "tmpdir"};
  Picture tmppic1{this, "tmppic1"};
  Picture tmpkamppic{this, "tmpkamppic"};
  Picture Image1{this, "Image1"};
};
inline ScratchForm tmpfrm;

} // namespace tarvelin
