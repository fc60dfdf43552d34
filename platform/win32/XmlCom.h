// The parts of COM that the DOM needs. For bodies in this folder only.
#pragma once

#include <windows.h>

#include <msxml2.h>
#include <objbase.h>
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

class CString;

namespace tq {

// Keeps COM initialised on this thread. A thread that is in an apartment already, of either kind,
// stays in it. Made and destroyed on the same thread.
class ComScope {
public:
  ComScope() : balance_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~ComScope() {
    if (balance_)
      ::CoUninitialize();
  }
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;

private:
  const bool balance_; // false where the thread is in the other kind of apartment
};

// An owned, counted interface.
template <typename Interface> class ComPtr {
public:
  ComPtr() = default;
  ComPtr(const ComPtr&) = delete;
  ComPtr& operator=(const ComPtr&) = delete;
  ~ComPtr() { Reset(); }

  // Where a call of COM stores its result.
  Interface** Receive() {
    Reset();
    return &pointer_;
  }
  Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  Interface* Detach() { return std::exchange(pointer_, nullptr); }
  void Reset() {
    if (pointer_ != nullptr)
      std::exchange(pointer_, nullptr)->Release();
  }

private:
  Interface* pointer_ = nullptr;
};

// An owned string of COM. A null one counts as empty. Without the memory for one the process is
// stopped, but for TryAssign.
class ComText {
public:
  ComText() = default;
  explicit ComText(std::string_view utf8);
  ComText(const ComText&) = delete;
  ComText& operator=(const ComText&) = delete;
  ~ComText() { ::SysFreeString(text_); }

  BSTR* Receive() {
    ::SysFreeString(std::exchange(text_, nullptr));
    return &text_;
  }
  // False, with the string empty, when there is no memory for it.
  bool TryAssign(std::string_view utf8);
  BSTR Get() const { return text_; }
  std::wstring_view View() const {
    return text_ != nullptr ? std::wstring_view(text_, ::SysStringLen(text_)) : std::wstring_view();
  }

private:
  BSTR text_ = nullptr;
};

std::string ToUtf8(std::wstring_view text);

} // namespace tq
