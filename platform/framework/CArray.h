// CArray: an array that grows, the one behind CStringArray, CUIntArray and CPtrArray too.
//
// Conventions that hold for every operation of this header
//  1. The array owns its elements; of pointers it owns the pointers, not what they point to.
//  2. An index outside of 0 .. GetSize()-1 is a programming error and stops the program through the
//     invalid-argument handler (InvalidArgument.h), unless the operation says that it grows the
//     array. So does a negative size or count.
//  3. New elements without a given value are value-initialised: numbers and pointers are 0.
//  4. Capacity grows by half, so that adding one by one takes linear time. Removing elements keeps
//     the capacity; FreeExtra frees it.
//  5. Operations that change the size invalidate pointers and references to elements. A value to be
//     added may be an element of the array itself.
//  6. One array is used by one thread at a time. Storage comes from tqFramework (Storage.h).
#pragma once

#include "platform/framework/ArrayStorage.h"

template <class TYPE, class ARG_TYPE = const TYPE&> class CArray {
public:
  CArray() noexcept = default;
  ~CArray() { m_store.Release(); }
  CArray(const CArray&) = delete; // call Copy
  CArray& operator=(const CArray&) = delete;
  CArray(CArray&& other) noexcept { m_store.Swap(other.m_store); }
  CArray& operator=(CArray&& other) noexcept {
    if (this != &other) {
      m_store.Release();
      m_store.Swap(other.m_store);
    }
    return *this;
  }

  int GetSize() const noexcept { return m_store.size; }
  int GetCount() const noexcept { return m_store.size; }
  bool IsEmpty() const noexcept { return m_store.size == 0; }
  int GetUpperBound() const noexcept { return m_store.size - 1; } // -1 when empty

  // Sets the number of elements: adds value-initialised ones or drops the last ones. `growBy` above
  // 0 is the least number of elements to make room for when growing from then on.
  void SetSize(int size, int growBy = -1) {
    m_store.SetGrowBy(growBy);
    m_store.SetSize(size);
  }
  void RemoveAll() { m_store.SetSize(0); }
  // Frees unused capacity.
  void FreeExtra() { m_store.FreeExtra(); }

  const TYPE& GetAt(int index) const { return m_store.At(index, "CArray::GetAt"); }
  TYPE& GetAt(int index) { return m_store.At(index, "CArray::GetAt"); }
  const TYPE& ElementAt(int index) const { return m_store.At(index, "CArray::ElementAt"); }
  TYPE& ElementAt(int index) { return m_store.At(index, "CArray::ElementAt"); }
  const TYPE& operator[](int index) const { return m_store.At(index, "CArray::operator[]"); }
  TYPE& operator[](int index) { return m_store.At(index, "CArray::operator[]"); }
  void SetAt(int index, ARG_TYPE value) { m_store.At(index, "CArray::SetAt") = value; }

  // The elements, contiguous; null when there has never been one.
  const TYPE* GetData() const noexcept { return m_store.data; }
  TYPE* GetData() noexcept { return m_store.data; }

  // Sets the element at `index`, growing the array up to it where needed.
  void SetAtGrow(int index, ARG_TYPE value) {
    if (index >= 0 && index < m_store.size)
      m_store.data[index] = value;
    else
      m_store.Insert(index, 1, static_cast<const TYPE&>(value));
  }

  // Adds one element at the end; returns its index.
  int Add(ARG_TYPE value) { return m_store.Add(static_cast<const TYPE&>(value)); }

  // Adds all elements of another array, or of this one, at the end; returns the index of the first.
  int Append(const CArray& other) {
    const int first = m_store.size;
    m_store.InsertArray(first, other.m_store);
    return first;
  }

  // Replaces the elements by copies of another array's.
  void Copy(const CArray& other) {
    if (this == &other)
      return;
    m_store.SetSize(0);
    m_store.InsertArray(0, other.m_store);
  }

  // Puts `count` elements of one value, or the elements of another array, in front of the element
  // at `index`. An index above the size first grows the array up to it.
  void InsertAt(int index, ARG_TYPE value, int count = 1) {
    m_store.Insert(index, count, static_cast<const TYPE&>(value));
  }
  void InsertAt(int index, const CArray* other) {
    if (other != nullptr)
      m_store.InsertArray(index, other->m_store);
  }

  // Removes `count` elements from `index` on; all of them have to be there.
  void RemoveAt(int index, int count = 1) { m_store.Remove(index, count); }

  // For range-based for.
  const TYPE* begin() const noexcept { return m_store.data; }
  const TYPE* end() const noexcept { return m_store.data + m_store.size; }
  TYPE* begin() noexcept { return m_store.data; }
  TYPE* end() noexcept { return m_store.data + m_store.size; }

private:
  tq::ArrayStorage<TYPE> m_store;
};
