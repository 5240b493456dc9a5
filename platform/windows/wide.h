#pragma once

#ifndef NOMINMAX
#define NOMINMAX // the library's std::min and std::max are wanted
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <string>
#include <string_view>
#include <windows.h>

// The system's own text is UTF-16.
namespace tarvelin::platform
{

std::wstring wide(std::string_view text);

/// UTF-8; a half pair in a file's name becomes U+FFFD.
std::string narrow(std::wstring_view text);

/// A variable of the environment in UTF-8, empty when it is not set.
std::string environment(const wchar_t* name);

} // namespace tarvelin::platform
