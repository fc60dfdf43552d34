// What writes lists in a format.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "tools/tqlists/formats/Entries.h"
#include "tools/tqlists/formats/Format.h"

namespace tqlists {

// Takes the text, which is UTF-8, piece by piece.
using Sink = std::function<void(std::string_view text)>;

class Writer {
public:
  virtual ~Writer() = default;
  // `defaultList` counts from 0; -1 for none.
  virtual void Begin(int defaultList) = 0;
  virtual void Add(const List& list) = 0;
  virtual void End() = 0;
};

enum class TextStyle {
  Full,  // lines that begin with "# " say where a list begins, its name and its id
  Plain, // ids and headings, and nothing else
};

std::unique_ptr<Writer> MakeTextWriter(Sink sink, TextStyle style);
std::unique_ptr<Writer> MakeCsvWriter(Sink sink);
std::unique_ptr<Writer> MakeJsonWriter(Sink sink);

} // namespace tqlists
