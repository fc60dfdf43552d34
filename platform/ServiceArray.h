// The owner of an array that the symbol-data service handed out.
#pragma once

#include <cstddef>
#include <span>
#include <utility>

#include "platform/services/VLProxy.h"

namespace tq {

// Pass List() and Count() to a service operation, then read Records(). The destructor releases the
// array to the service, also after a failed call.
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

  // Only after a successful call.
  std::span<const Record> Records() const {
    if (list_ == nullptr || count_ <= 0)
      return {};
    return {list_, static_cast<std::size_t>(count_)};
  }

  // Transfers the array to the caller, who releases it with VLFree.
  Record* Release() { return std::exchange(list_, nullptr); }

private:
  Record* list_ = nullptr;
  int count_ = 0;
};

} // namespace tq
