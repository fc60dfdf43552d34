// The owner of an array that the symbol-data service handed out.
#pragma once

#include <cstddef>
#include <span>
#include <utility>

#include "platform/services/VLProxy.h"

namespace tq {

// Give List() and Count() to a service operation, then read Records(). What the operation left in
// the list is given back to the service at the end of the scope, after a failed call as well.
template <typename Record> class ServiceArray {
public:
  ServiceArray() = default;
  ServiceArray(ServiceArray&& other) noexcept
      : list_(std::exchange(other.list_, nullptr)), count_(std::exchange(other.count_, 0)) {}
  ServiceArray& operator=(ServiceArray&&) = delete;
  ~ServiceArray() {
    if (list_ != nullptr)
      VLFree(list_);
  }

  Record** List() { return &list_; }
  int* Count() { return &count_; }

  // To be read only after a call that succeeded.
  std::span<const Record> Records() const {
    if (list_ == nullptr || count_ <= 0)
      return {};
    return {list_, static_cast<std::size_t>(count_)};
  }

  // Leaves the array to the caller, who gives it back with VLFree.
  Record* Release() { return std::exchange(list_, nullptr); }

private:
  Record* list_ = nullptr;
  int count_ = 0;
};

} // namespace tq
