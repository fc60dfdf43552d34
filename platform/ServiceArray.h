// The owner of an array that the symbol-data service handed out.
#pragma once

#include <cstddef>
#include <span>
#include <utility>

#include "platform/diagnostics/ServiceChecks.h"
#include "platform/services/VLProxy.h"

namespace tq {

// Pass List() and Count() to a service operation, then read Records(). The destructor releases the
// array to the service, also after a failed call.
template <typename Record> class ServiceArray {
public:
  // `operation` is the service's, a literal: the debug mode names it.
  explicit ServiceArray(const char* operation) : operation_(operation) {}
  ServiceArray(ServiceArray&& other) noexcept
      : list_(std::exchange(other.list_, nullptr)), count_(std::exchange(other.count_, 0)),
        operation_(other.operation_), isChecked_(other.isChecked_) {}
  ServiceArray& operator=(ServiceArray&&) = delete;
  ~ServiceArray() {
    if (list_ != nullptr)
      VLFree(list_);
  }

  Record** List() { return &list_; }
  int* Count() { return &count_; }

  // Only after a successful call.
  std::span<const Record> Records() const {
    Check();
    if (list_ == nullptr || count_ <= 0)
      return {};
    return {list_, static_cast<std::size_t>(count_)};
  }

  // What the debug mode has to say of it, once. Only after a successful call.
  void Check() const {
    if (IsDebugging() && !std::exchange(isChecked_, true))
      CheckArray(operation_, list_, count_);
  }

  // Transfers the array to the caller, who releases it with VLFree.
  Record* Release() { return std::exchange(list_, nullptr); }

private:
  Record* list_ = nullptr;
  int count_ = 0;
  const char* operation_;
  mutable bool isChecked_ = false;
};

} // namespace tq
