// How the operations of VLProxy hand out arrays.
#pragma once

#include <cstddef>
#include <cstring>
#include <limits>
#include <span>

#include "terminal/control/Answers.h"
#include "terminal/control/ServiceArrays.h"

namespace standin {

// Checks and clears the outputs; false when one is missing.
template <class T> bool ClearOutputs(T** list, int* count) {
  if (list)
    *list = nullptr;
  if (count)
    *count = 0;
  return list && count;
}

// Hands out an array of `size` zero-filled records. Returns non-zero on success.
template <class T> int HandOut(std::size_t size, T** list, int* count) {
  if (size > static_cast<std::size_t>(std::numeric_limits<int>::max()))
    return 0;
  T* array = NewArray<T>(size);
  if (!array && size > 0)
    return 0;
  *list = array;
  *count = static_cast<int>(size);
  return 1;
}

// Hands out a copy of the records.
template <class T> int HandOutCopy(std::span<const T> records, T** list, int* count) {
  if (!HandOut(records.size(), list, count))
    return 0;
  if (!records.empty())
    std::memcpy(*list, records.data(), records.size_bytes());
  return 1;
}

// Hands out the array, count and result that a test has set in place of the market's.
template <class T> int HandOutAnswer(const Answer<T>& answer, T** list, int* count) {
  if (!HandOutCopy(std::span<const T>(answer.records), list, count))
    return 0;
  *count = answer.count;
  return answer.result;
}

} // namespace standin
