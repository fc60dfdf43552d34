#include "platform/win32/XmlCom.h"

#include "platform/framework/Storage.h"

namespace tq {

ComText::ComText(std::string_view utf8) {
  if (!TryAssign(utf8))
    OutOfMemory();
}

bool ComText::TryAssign(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  Free();
  text_ = ::SysAllocStringLen(nullptr, static_cast<UINT>(length));
  if (text_ == nullptr)
    return false;
  NoteOpened(SystemObject::Text);
  ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text_, length);
  return true;
}

std::string ToUtf8(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int size =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

} // namespace tq
