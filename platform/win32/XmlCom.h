// The parts of COM that the DOM needs. For bodies in this folder only.
#pragma once

#include <windows.h>

#include <msxml2.h>
#include <objbase.h>
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

#include "platform/win32/WindowsObjects.h"

class CString;

namespace tq {

// Keeps COM initialised on this thread. A thread that is in an apartment of either kind stays in
// it. Constructed and destroyed on the same thread.
class ComScope {
public:
  ComScope() : balance_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
    if (balance_)
      NoteOpened(SystemObject::Com);
  }
  ~ComScope() {
    if (!balance_)
      return;
    ::CoUninitialize();
    NoteClosed(SystemObject::Com);
  }
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;

private:
  const bool balance_; // false when the thread is in the other kind of apartment
};

// Adds and removes a reference to an interface.
template <typename Interface> Interface* TakeReference(Interface* object) {
  object->AddRef();
  NoteOpened(SystemObject::Interface);
  return object;
}
template <typename Interface> void GiveBack(Interface* object) {
  object->Release();
  NoteClosed(SystemObject::Interface);
}

// The output argument of a COM call whose result the caller owns. Lives as long as the call.
template <typename Pointer> class Receiver {
public:
  Receiver(Pointer& result, SystemObject kind) : result_(result), kind_(kind) {}
  ~Receiver() {
    if (result_ != nullptr)
      NoteOpened(kind_);
  }
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;
  operator Pointer*() const { return &result_; }
  operator void**() const { return reinterpret_cast<void**>(&result_); }

private:
  Pointer& result_;
  const SystemObject kind_;
};

// Owns one reference to an interface.
template <typename Interface> class ComPtr {
public:
  ComPtr() = default;
  ComPtr(const ComPtr&) = delete;
  ComPtr& operator=(const ComPtr&) = delete;
  ~ComPtr() { Reset(); }

  Receiver<Interface*> Receive() {
    Reset();
    return {pointer_, SystemObject::Interface};
  }
  Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  Interface* Detach() { return std::exchange(pointer_, nullptr); }
  void Reset(Interface* owned = nullptr) {
    if (Interface* const before = std::exchange(pointer_, owned))
      GiveBack(before);
  }

private:
  Interface* pointer_ = nullptr;
};

// Owns a COM string; null counts as empty. When memory runs out the process is stopped, except in
// TryAssign.
class ComText {
public:
  ComText() = default;
  explicit ComText(std::string_view utf8);
  // Takes ownership of a string.
  static ComText Own(BSTR text) { return ComText(text); }
  ComText(const ComText&) = delete;
  ComText& operator=(const ComText&) = delete;
  ~ComText() { Free(); }

  Receiver<BSTR> Receive() {
    Free();
    return {text_, SystemObject::Text};
  }
  // False, with the string empty, when there is no memory for it.
  bool TryAssign(std::string_view utf8);
  BSTR Get() const { return text_; }
  std::wstring_view View() const {
    return text_ != nullptr ? std::wstring_view(text_, ::SysStringLen(text_)) : std::wstring_view();
  }

private:
  explicit ComText(BSTR text) : text_(text) {
    if (text_ != nullptr)
      NoteOpened(SystemObject::Text);
  }
  void Free() {
    if (text_ == nullptr)
      return;
    ::SysFreeString(std::exchange(text_, nullptr));
    NoteClosed(SystemObject::Text);
  }

  BSTR text_ = nullptr;
};

std::string ToUtf8(std::wstring_view text);

} // namespace tq
