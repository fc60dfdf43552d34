// The DLL's resources as bytes.
#pragma once

#include <windows.h>

#include <string>

constexpr WORD kTraditional = 1028;
constexpr WORD kSimplified = 2052;

struct Resource {
  const unsigned char* bytes = nullptr; // null when there is none in exactly that language
  size_t size = 0;
};

inline HMODULE Library() {
  return GetModuleHandleA("tqSymbol.dll");
}

// `type` is one of the RT_ values.
template <class Type> Resource FindResourceOf(Type type, WORD id, WORD language) {
  const HRSRC found =
      FindResourceExW(Library(), reinterpret_cast<LPCWSTR>(type), MAKEINTRESOURCEW(id), language);
  if (found == nullptr)
    return {};
  return {static_cast<const unsigned char*>(LockResource(LoadResource(Library(), found))),
          SizeofResource(Library(), found)};
}

inline std::wstring Wide(const char* utf8) {
  wchar_t text[256] = {};
  MultiByteToWideChar(CP_UTF8, 0, utf8, -1, text, 256);
  return text;
}
