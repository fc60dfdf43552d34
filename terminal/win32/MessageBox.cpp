#include "terminal/control/MessageBox.h"

#include <windows.h>

#include "terminal/control/Reports.h"

namespace standin {
namespace {

constexpr unsigned kEntriesInBlock = 16; // of a string table

WORD ResourceLanguage() {
  const bool traditional = InterfaceLanguage() == Language::Traditional;
  return MAKELANGID(LANG_CHINESE,
                    traditional ? SUBLANG_CHINESE_TRADITIONAL : SUBLANG_CHINESE_SIMPLIFIED);
}

// An entry of the module's string table; empty when there is none. LoadString would take it in the
// language of the user's Windows.
std::wstring EntryOf(HMODULE module, unsigned id) {
  const auto block = static_cast<WORD>(id / kEntriesInBlock + 1);
  const HRSRC found =
      ::FindResourceExA(module, RT_STRING, MAKEINTRESOURCEA(block), ResourceLanguage());
  if (found == nullptr)
    return {};
  // Each entry is its length and that many characters.
  const auto* entry = static_cast<const wchar_t*>(::LockResource(::LoadResource(module, found)));
  for (unsigned i = 0; i < id % kEntriesInBlock; ++i)
    entry += 1 + *entry;
  return {entry + 1, static_cast<std::size_t>(*entry)};
}

std::wstring Wide(const std::string& bytes) {
  const int length = static_cast<int>(bytes.size());
  std::wstring wide(bytes.size(), L'\0');
  const int units = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), length);
  wide.resize(static_cast<std::size_t>(units));
  return wide;
}

// The terminal's name.
const wchar_t* Title() {
  return InterfaceLanguage() == Language::Traditional ? L"行情終端" : L"行情终端";
}

} // namespace

int ShowBox(const Message& message) {
  const std::wstring text = message.id == 0
                                ? Wide(message.text)
                                : EntryOf(static_cast<HMODULE>(message.resources), message.id);
  if (text.empty())
    return 0;
  return ::MessageBoxW(::GetActiveWindow(), text.c_str(), Title(), message.type);
}

} // namespace standin
