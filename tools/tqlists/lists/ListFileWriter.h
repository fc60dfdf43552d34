// Writes a list file as the library writes one (docs/list-file.md), but for the three characters
// and the line ends that a value holds only as references.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "recovery/ListRecovery.h"
#include "tools/tqlists/files/Output.h"

namespace tqlists {

// Texts are in the file's encoding.
class ListFileWriter {
public:
  ListFileWriter(Output& output, tq::TextEncoding encoding)
      : output_(output), encoding_(encoding) {}

  // `defaultList` counts from 0; -1 for none, as only a file without lists has it.
  void Begin(int defaultList);
  void Add(std::string_view id, std::string_view name, std::string_view symbols);
  void End();

  std::size_t Lists() const { return lists_; }
  // Whether the library loads a file of this size and number of lists.
  bool IsLoadable() const;

private:
  void Put(std::string_view text);
  void PutValue(std::string_view text);

  Output& output_;
  const tq::TextEncoding encoding_;
  std::size_t lists_ = 0;
  std::size_t size_ = 0;
};

// Whether a text has one of the characters that are written as references.
bool NeedsReferences(std::string_view text);

} // namespace tqlists
