#include "ui/binder.h"

#include "ui/links.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

namespace tarvelin::ui
{
namespace
{

QAction* findMenu(const QWidget& window, const QString& name)
{
  if (const QMenu* const menu = window.findChild<QMenu*>(name))
    return menu->menuAction();
  return window.findChild<QAction*>(name);
}

} // namespace

QString widgetName(const Field& field)
{
  const QString name = QString::fromStdString(field.name());
  return field.index() == Field::noIndex ? name : name + '_' + QString::number(field.index());
}

std::unique_ptr<Link> bindField(Field& field, QWidget& window)
{
  const QString name = widgetName(field);
  QWidget* const widget = window.findChild<QWidget*>(name);
  switch (field.kind())
  {
  case Kind::text: return linkText(static_cast<Text&>(field), widget);
  case Kind::richtext: return linkRichText(static_cast<RichText&>(field), widget);
  case Kind::label: return linkLabel(static_cast<Label&>(field), widget);
  case Kind::command: return linkCommand(static_cast<Command&>(field), widget);
  case Kind::check: return linkCheck(static_cast<Check&>(field), widget);
  case Kind::option: return linkOption(static_cast<Option&>(field), widget);
  case Kind::list: return linkList(static_cast<List&>(field), widget);
  case Kind::combo: return linkCombo(static_cast<Combo&>(field), widget);
  case Kind::tree: return linkTree(static_cast<Tree&>(field), widget);
  case Kind::picture: return linkPicture(static_cast<Picture&>(field), widget);
  case Kind::slider: return linkSlider(static_cast<Slider&>(field), widget);
  case Kind::filelist: return linkFileList(static_cast<FileList&>(field), widget);
  case Kind::folderlist: return linkFolderList(static_cast<FolderList&>(field), widget);
  case Kind::drivelist: return linkDriveList(static_cast<DriveList&>(field), widget);
  case Kind::tabstrip: return linkTabs(static_cast<TabStrip&>(field), widget);
  case Kind::progress: return linkProgress(static_cast<Progress&>(field), widget);
  case Kind::browser: return linkBrowser(static_cast<Browser&>(field), widget);
  case Kind::group: return linkGroup(static_cast<Group&>(field), widget);
  case Kind::menu: return linkMenu(static_cast<Menu&>(field), findMenu(window, name));
  case Kind::dialog: break; // the platform's own window
  }
  return {};
}

std::vector<std::unique_ptr<Link>> bindForm(Form& form, QWidget& window, std::vector<std::string>* unbound)
{
  std::vector<std::unique_ptr<Link>> links;
  for (Field* const field : form.fields())
  {
    if (auto link = bindField(*field, window))
      links.push_back(std::move(link));
    else if (unbound && field->kind() != Kind::dialog)
      unbound->push_back(field->fullName());
  }
  return links;
}

} // namespace tarvelin::ui
