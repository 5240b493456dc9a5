#pragma once

#include <QString>
#include <string>

namespace tarvelin::ui
{

/// A file as a browser field shows it.
struct Page
{
  QString text;
  bool html = false;
};

/// Reads a page: HTML by the character set that it declares, everything else as text in the machine's code page. A file
/// that cannot be read is an empty page.
Page readPage(const std::string& path);

} // namespace tarvelin::ui
