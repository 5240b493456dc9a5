#pragma once

#include <clocale>
#include <langinfo.h>
#include <string>

// The locale that the environment names, opened beside the "C" locale in which the process itself stays.
namespace tarvelin::platform
{

class SystemLocale
{
public:
  SystemLocale();
  ~SystemLocale();
  SystemLocale(const SystemLocale&) = delete;
  SystemLocale& operator=(const SystemLocale&) = delete;

  locale_t get() const { return m_locale; }

  /// A fact about the locale, as bytes of its charset.
  const char* info(nl_item item) const { return nl_langinfo_l(item, m_locale); }

  /// UTF-8 of a text in the locale's charset. A byte that is no character of it becomes "?".
  std::string toUtf8(std::string_view bytes) const;

private:
  locale_t m_locale;
};

} // namespace tarvelin::platform
