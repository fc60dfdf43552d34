#include "tools/tqlists/files/Output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "tools/tqlists/files/Input.h"
#include "tools/tqlists/files/Outcome.h"
#include "tools/tqlists/files/SystemFile.h"

namespace tqlists {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 16;

class StandardOutput : public Output {
public:
  explicit StandardOutput(Streams& streams) : streams_(streams) {}

protected:
  void Send(std::string_view bytes) override { Check(streams_.Write(bytes)); }
  void Finish() override { Check(streams_.Flush()); }

private:
  static void Check(Written written) {
    if (written == Written::Closed)
      throw Ending(kTrouble, "");
    if (written == Written::Failed)
      throw Ending(kTrouble,
                   std::string("standard output cannot be written: ") + std::strerror(errno));
  }

  Streams& streams_;
};

// Written under another name beside it, and given its own at the end.
class NewFile : public Output {
public:
  NewFile(const std::string& path, Existing existing);
  ~NewFile() override { Abandon(); }

protected:
  void Send(std::string_view bytes) override;
  void Finish() override;

private:
  [[noreturn]] void Fail(const std::string& why) const {
    throw Ending(kTrouble, path_ + ": cannot be written: " + why);
  }
  [[noreturn]] void RefuseExisting() const {
    throw Ending(kUsage, path_ + ": exists; --force replaces it");
  }
  void OpenTemporary();
  bool Close();
  void Abandon();

  const std::string path_;
  const std::string target_;
  const Existing existing_;
  std::string temporary_;
  std::FILE* file_ = nullptr;
};

NewFile::NewFile(const std::string& path, Existing existing)
    : path_(path), target_(BehindLinks(path)), existing_(existing) {
  FileIdentity there;
  if (existing == Existing::Refuse && IdentityOf(target_, there))
    RefuseExisting();
  OpenTemporary();
}

// Others may use the same names: the first free one is taken.
void NewFile::OpenTemporary() {
  constexpr int names = 100;
  for (int i = 0; i < names && file_ == nullptr; ++i) {
    temporary_ = target_ + "." + std::to_string(i) + ".tmp";
    file_ = CreateNewFile(temporary_);
  }
  if (file_ == nullptr)
    Fail(std::strerror(errno));
}

void NewFile::Send(std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
    Fail(std::strerror(errno));
}

void NewFile::Finish() {
  const bool flushed = FlushToDisk(file_);
  const std::string why = std::strerror(errno);
  if (!Close() || !flushed)
    Fail(why);
  const Placing placed = PutInPlace(temporary_, target_, existing_ == Existing::Replace);
  if (placed == Placing::Taken)
    RefuseExisting();
  if (placed == Placing::Failed)
    Fail(std::strerror(errno));
  temporary_.clear();
}

bool NewFile::Close() {
  std::FILE* const file = file_;
  file_ = nullptr;
  return file == nullptr || std::fclose(file) == 0;
}

void NewFile::Abandon() {
  Close();
  if (!temporary_.empty())
    RemoveFile(temporary_);
}

} // namespace

void Output::Write(std::string_view bytes) {
  waiting_ += bytes;
  if (waiting_.size() < kPiece)
    return;
  Send(waiting_);
  waiting_.clear();
}

void Output::Commit() {
  Send(waiting_);
  waiting_.clear();
  Finish();
}

std::unique_ptr<Output> Output::Open(const std::string& path, Existing existing, Streams& streams) {
  if (path == kStandardStream)
    return std::make_unique<StandardOutput>(streams);
  return std::make_unique<NewFile>(path, existing);
}

} // namespace tqlists
