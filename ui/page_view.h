#pragma once

#include <QTextBrowser>
#include <QUrl>

namespace tarvelin::ui
{

/// True for a file of this machine; a share of another one is none, however its address is written.
bool isOnThisMachine(const QUrl& address);

/// A browser of local pages: their pictures and style sheets come from this machine or not at all.
class PageView : public QTextBrowser
{
public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override;
};

} // namespace tarvelin::ui
