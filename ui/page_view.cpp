#include "ui/page_view.h"

namespace tarvelin::ui
{

bool isOnThisMachine(const QUrl& address)
{
  if (!address.host().isEmpty() || (!address.scheme().isEmpty() && !address.isLocalFile()))
    return false;
  const QString path = address.isLocalFile() ? address.toLocalFile() : address.path();
  return !QString(path).replace('\\', '/').startsWith("//");
}

QVariant PageView::loadResource(int type, const QUrl& name)
{
  if (!isOnThisMachine(name) || !isOnThisMachine(document()->baseUrl().resolved(name)))
    return {};
  return QTextBrowser::loadResource(type, name);
}

} // namespace tarvelin::ui
