#pragma once

#include "core/forms/kinds.h"
#include "ui/link.h"

#include <memory>

class QAction;
class QWidget;

// One maker per kind of field. Each gives null when the widget cannot show the kind.
namespace tarvelin::ui
{

std::unique_ptr<Link> linkLabel(Label& field, QWidget* widget);
std::unique_ptr<Link> linkGroup(Group& field, QWidget* widget);
std::unique_ptr<Link> linkCommand(Command& field, QWidget* widget);
std::unique_ptr<Link> linkCheck(Check& field, QWidget* widget);
std::unique_ptr<Link> linkOption(Option& field, QWidget* widget);
std::unique_ptr<Link> linkMenu(Menu& field, QAction* action);
std::unique_ptr<Link> linkText(Text& field, QWidget* widget);
std::unique_ptr<Link> linkRichText(RichText& field, QWidget* widget);
std::unique_ptr<Link> linkList(List& field, QWidget* widget);
std::unique_ptr<Link> linkCombo(Combo& field, QWidget* widget);
std::unique_ptr<Link> linkTree(Tree& field, QWidget* widget);
std::unique_ptr<Link> linkPicture(Picture& field, QWidget* widget);
std::unique_ptr<Link> linkSlider(Slider& field, QWidget* widget);
std::unique_ptr<Link> linkProgress(Progress& field, QWidget* widget);
std::unique_ptr<Link> linkTabs(TabStrip& field, QWidget* widget);
std::unique_ptr<Link> linkFileList(FileList& field, QWidget* widget);
std::unique_ptr<Link> linkFolderList(FolderList& field, QWidget* widget);
std::unique_ptr<Link> linkDriveList(DriveList& field, QWidget* widget);
std::unique_ptr<Link> linkBrowser(Browser& field, QWidget* widget);

} // namespace tarvelin::ui
