// The system's files as the library gets them in a life: steps fail and the disk is full at random,
// and each save is noted in the ledger before it begins.
#pragma once

#include <string>
#include <vector>

#include "platform/FileAccess.h"
#include "soak/Ledger.h"
#include "soak/Random.h"

namespace soak {

// Who looks at what is written.
class DiskWatch {
public:
  virtual ~DiskWatch() = default;
  virtual void BeforeSave(const std::string& path, const std::string& bytes) = 0;
  virtual void AfterSave(const std::string& path, const std::string& bytes, bool saved) = 0;
  virtual void AfterRename(const std::string& from, const std::string& to) = 0;
  virtual void AfterRemoval(const std::string& path) = 0;
};

// How often something goes wrong: once in so many times, never for 0.
struct DiskTrouble {
  int saving = 0;
  int reading = 0;
  bool mayRefuse = false; // the system does not allow to replace files, which are written in place
};

class Disk : public tq::FileAccessWrapper {
public:
  // Replaces the library's files during its lifetime. With `careless` a save writes over the file.
  Disk(Ledger& ledger, Random& random, DiskWatch& watch, bool careless);
  ~Disk() override;
  Disk(const Disk&) = delete;
  Disk& operator=(const Disk&) = delete;

  void SetTrouble(const DiskTrouble& trouble) { trouble_ = trouble; }
  // What went wrong so far.
  std::uint64_t Troubles() const { return troubles_; }

  tq::ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override;
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override;
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override;
  bool FileExists(const char* path) override;
  bool RenameFile(const char* from, const char* to) override;
  bool RemoveFile(const char* path) override;
  bool ListFiles(const char* directory, const char* prefix,
                 std::vector<std::string>& names) override;
  // As another program writes a file: never with trouble, and nobody looks.
  void Intrude(const std::string& path, const std::string& bytes);

private:
  bool ReadingFails();
  tq::SaveResult Save(const char* path, const std::string& bytes);
  // The file must be as it was.
  void CheckRefused(const std::string& path, const FileNote& note);

  Ledger& ledger_;
  Random& random_;
  DiskWatch& watch_;
  const bool careless_;
  DiskTrouble trouble_;
  std::uint64_t troubles_ = 0;
  tq::FileAccess* before_;
};

} // namespace soak
