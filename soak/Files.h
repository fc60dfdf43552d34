// What the list files of a life hold, and which of them must not be written over: one whose lists
// were never in memory, unless a copy of it is kept.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "soak/Disk.h"
#include "soak/Lists.h"

namespace soak {

class Files : public DiskWatch {
public:
  // What is known of the lists of a file.
  enum class Seen {
    No,     // nobody has them in memory
    Unsure, // operations within each other have loaded and saved
    Yes,
  };

  // `inMemory`: the lists now; `tell` is told in words what is lost.
  Files(std::function<Lists()> inMemory, std::function<void(const std::string&)> tell)
      : inMemory_(std::move(inMemory)), tell_(std::move(tell)) {}

  // A manager begins: none of its lists come from a file.
  void ForgetAll();
  // Of the operation that runs.
  void SetLoading(bool loading) { loading_ = loading; }
  // List files written since the last question.
  int TakeWrites();
  // What it held when it was looked at last; empty when there is no such file.
  const std::string& BytesOf(const std::string& path);
  // A load from that file has ended, while which no disk has failed; or loads of any files.
  void Loaded(const std::string& path, const Lists& now, bool undisturbed);
  void LoadedSomething();
  void Intruded(const std::string& path, const std::string& bytes);

  void BeforeSave(const std::string& path, const std::string& bytes) override;
  void AfterSave(const std::string& path, const std::string& bytes, bool saved) override;
  void AfterRename(const std::string& from, const std::string& to) override;
  void AfterRemoval(const std::string& path) override;

private:
  struct File {
    std::string bytes;
    Seen seen = Seen::No;
  };

  File& At(const std::string& path);
  void CheckText(const std::string& path, const std::string& bytes);
  void CheckCopy(const std::string& path, const std::string& bytes);
  bool IsKept(const std::string& path, const std::string& bytes) const;

  std::function<Lists()> inMemory_;
  std::function<void(const std::string&)> tell_;
  std::map<std::string, File> files_;
  Seen unread_ = Seen::No; // files that are not in it yet
  bool loading_ = false;
  int writes_ = 0;
};

} // namespace soak
