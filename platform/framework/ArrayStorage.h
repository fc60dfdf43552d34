// The memory of a CArray: capacity, growth and moving of elements. Internal to CArray.h, whose
// conventions hold. Not a standard container, because the layout is part of the interface and
// must not depend on a standard library or its settings.
#pragma once

#include <climits>
#include <cstddef>
#include <cstring>
#include <new>
#include <utility>

#include "platform/framework/InvalidArgument.h"
#include "platform/framework/Storage.h"

namespace tq {

template <class TYPE> struct ArrayStorage {
  static_assert(alignof(TYPE) <= alignof(std::max_align_t));

  TYPE* data = nullptr;
  int size = 0;
  int capacity = 0;
  int growBy = 0;

  TYPE& At(int index, const char* operation) const {
    if (static_cast<unsigned>(index) >= static_cast<unsigned>(size))
      IndexOutOfRange(operation, index, size);
    return data[index];
  }

  void Swap(ArrayStorage& other) noexcept { std::swap(*this, other); }

  void Release() noexcept {
    Destroy(0, size);
    FreeStorage(data);
    *this = ArrayStorage();
  }

  void SetGrowBy(int count) {
    if (count > 0)
      growBy = count;
  }

  void SetSize(int wanted) {
    if (wanted < 0)
      InvalidArgument("CArray::SetSize: negative size");
    if (wanted <= size) {
      Destroy(wanted, size);
    } else {
      Reserve(wanted);
      for (int i = size; i < wanted; ++i)
        new (data + i) TYPE();
    }
    size = wanted;
  }

  int Add(const TYPE& value) {
    if (size == capacity)
      return AddMoved(TYPE(value)); // copied first: it may be an element of this array
    new (data + size) TYPE(value);
    return size++;
  }

  // By value: the caller's may be an element of this array.
  void Insert(int index, int count, TYPE value) {
    if (index < 0 || count < 0)
      InvalidArgument("CArray::InsertAt: negative index or count");
    OpenGap(index, count);
    for (int i = 1; i < count; ++i)
      new (data + index + i) TYPE(value);
    if (count > 0)
      new (data + index) TYPE(std::move(value));
  }

  void InsertArray(int index, const ArrayStorage& other) {
    if (index < 0)
      InvalidArgument("CArray::InsertAt: negative index");
    const int count = other.size;
    const bool itself = this == &other;
    OpenGap(index, count);
    for (int i = 0; i < count; ++i) {
      // In an array inserted into itself, the elements behind the gap have moved.
      const TYPE* from = other.data + (itself && i >= index ? i + count : i);
      new (data + index + i) TYPE(*from);
    }
  }

  void Remove(int index, int count) {
    if (index < 0 || count < 0 || index > size - count)
      IndexOutOfRange("CArray::RemoveAt", index, size);
    Destroy(index, index + count);
    MoveWithin(index, index + count, size - index - count);
    size -= count;
  }

  void FreeExtra() {
    if (size == capacity)
      return;
    if (size == 0) {
      FreeStorage(data);
      data = nullptr;
      capacity = 0;
    } else {
      Resize(size);
    }
  }

private:
  int AddMoved(TYPE value) {
    Reserve(Sum(size, 1));
    new (data + size) TYPE(std::move(value));
    return size++;
  }

  static int Sum(int left, int right) {
    if (left > INT_MAX - right)
      OutOfMemory();
    return left + right;
  }

  void Destroy(int from, int to) noexcept {
    for (int i = from; i < to; ++i)
      data[i].~TYPE();
  }

  // Makes uninitialised room for `count` elements in front of `index`; the caller constructs them.
  // `size` includes them already.
  void OpenGap(int index, int count) {
    if (index > size)
      SetSize(index);
    Reserve(Sum(size, count));
    MoveWithin(index + count, index, size - index);
    size += count;
  }

  void Reserve(int wanted) {
    if (wanted <= capacity)
      return;
    const int step = capacity / 2 > growBy ? capacity / 2 : growBy;
    const int grown = capacity > INT_MAX - step ? INT_MAX : capacity + step;
    Resize(wanted > grown ? wanted : grown);
  }

  void Resize(int wanted) {
    const size_t bytes = static_cast<size_t>(wanted) * sizeof(TYPE);
    if (bytes / sizeof(TYPE) != static_cast<size_t>(wanted))
      OutOfMemory();
    if constexpr (isRelocatable<TYPE>) {
      data = static_cast<TYPE*>(ResizeStorage(data, bytes));
    } else {
      TYPE* const moved = static_cast<TYPE*>(AllocateStorage(bytes));
      for (int i = 0; i < size; ++i)
        MoveElement(moved + i, data + i);
      FreeStorage(data);
      data = moved;
    }
    capacity = wanted;
  }

  static void MoveElement(TYPE* to, TYPE* from) {
    new (to) TYPE(std::move(*from));
    from->~TYPE();
  }

  // Moves `count` elements within the array, over uninitialised memory or themselves.
  void MoveWithin(int to, int from, int count) {
    if (count == 0 || to == from)
      return;
    if constexpr (isRelocatable<TYPE>) {
      const size_t bytes = static_cast<size_t>(count) * sizeof(TYPE);
      std::memmove(static_cast<void*>(data + to), static_cast<const void*>(data + from), bytes);
    } else if (to < from) {
      for (int i = 0; i < count; ++i)
        MoveElement(data + to + i, data + from + i);
    } else {
      for (int i = count; i-- > 0;)
        MoveElement(data + to + i, data + from + i);
    }
  }
};

} // namespace tq
