#include "platform/registry.h"

#include "platform/windows/wide.h"

#include <utility>
#include <vector>

namespace tarvelin::platform
{

namespace
{

HKEY handleOf(RegistryRoot root)
{
  switch (root)
  {
  case RegistryRoot::classesRoot: return HKEY_CLASSES_ROOT;
  case RegistryRoot::currentUser: return HKEY_CURRENT_USER;
  case RegistryRoot::localMachine: break;
  }
  return HKEY_LOCAL_MACHINE;
}

class Key
{
public:
  Key(RegistryRoot root, std::string_view name, REGSAM access)
  {
    if (RegOpenKeyExW(handleOf(root), wide(name).c_str(), 0, access, &m_key) != ERROR_SUCCESS)
      m_key = nullptr;
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key()
  {
    if (m_key != nullptr)
      RegCloseKey(m_key);
  }

  bool valid() const { return m_key != nullptr; }
  HKEY get() const { return m_key; }

private:
  HKEY m_key = nullptr;
};

// The program's own view first, then the one in which 32-bit programs live.
constexpr REGSAM views[] = {0, KEY_WOW64_32KEY};

std::optional<std::string> stringOf(const Key& key, const std::wstring& name)
{
  DWORD type = 0;
  DWORD size = 0;
  if (RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
      (type != REG_SZ && type != REG_EXPAND_SZ))
    return std::nullopt;
  std::vector<wchar_t> text(size / sizeof(wchar_t) + 1, L'\0'); // not every value brings its own zero
  size = static_cast<DWORD>((text.size() - 1) * sizeof(wchar_t));
  if (RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size) !=
      ERROR_SUCCESS)
    return std::nullopt;
  return narrow(text.data());
}

} // namespace

std::optional<std::string> registryString(RegistryRoot root, std::string_view key, std::string_view value)
{
  for (const REGSAM view : views)
  {
    const Key open(root, key, KEY_READ | view);
    if (auto text = open.valid() ? stringOf(open, wide(value)) : std::nullopt)
      return text;
  }
  return std::nullopt;
}

bool registryKeyExists(RegistryRoot root, std::string_view key)
{
  for (const REGSAM view : views)
    if (!key.empty() && Key(root, key, KEY_READ | view).valid())
      return true;
  return false;
}

bool setRegistryString(RegistryRoot root, std::string_view key, std::string_view value, std::string_view text)
{
  HKEY made = nullptr;
  if (RegCreateKeyExW(handleOf(root), wide(key).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &made, nullptr) !=
      ERROR_SUCCESS)
    return false;
  const std::wstring content = wide(text);
  const auto size = static_cast<DWORD>((content.size() + 1) * sizeof(wchar_t));
  const LSTATUS result =
      RegSetValueExW(made, wide(value).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(content.c_str()), size);
  RegCloseKey(made);
  return result == ERROR_SUCCESS;
}

bool deleteRegistryKey(RegistryRoot root, std::string_view key)
{
  // Without a name the whole root would go.
  return !key.empty() && RegDeleteTreeW(handleOf(root), wide(key).c_str()) == ERROR_SUCCESS;
}

bool deleteRegistryValue(RegistryRoot root, std::string_view key, std::string_view value)
{
  const Key open(root, key, KEY_SET_VALUE);
  return open.valid() && RegDeleteValueW(open.get(), wide(value).c_str()) == ERROR_SUCCESS;
}

} // namespace tarvelin::platform
