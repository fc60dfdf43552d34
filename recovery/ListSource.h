// Where the lists of a file come from, and what a source finds out about the file on its way.
#pragma once

#include <optional>
#include <vector>

#include "recovery/RawList.h"

namespace tq {

// Bounds the memory that a file of nothing but damage takes.
inline constexpr std::size_t kMostNotedOfFile = 1024;

class ListSource {
public:
  ListSource() = default;
  ListSource(const ListSource&) = delete;
  ListSource& operator=(const ListSource&) = delete;
  virtual ~ListSource() = default;

  // Replaces `list` by the next one in the order of the file. False at the end.
  virtual bool Next(RawList& list) = 0;

  // After the last list: what the file as a whole has.
  const std::vector<RawFault>& Faults() const { return faults_; }
  // The default index in the file; none when it is missing or no number.
  std::optional<int> Index() const { return index_; }
  // Whether the file says that it holds lists, be it none.
  bool IsListFile() const { return isListFile_; }

protected:
  void Note(Fault fault, std::size_t at, std::size_t length) {
    if (faults_.size() < kMostNotedOfFile)
      faults_.push_back({fault, at, length});
  }
  // At the first element of lists: what its DefaultIdx holds.
  void TakeIndex(std::string_view value, std::size_t at);
  void MissIndex(std::size_t at, std::size_t length);

private:
  std::vector<RawFault> faults_;
  std::optional<int> index_;
  bool isListFile_ = false;
};

} // namespace tq
