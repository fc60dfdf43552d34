#include "platform/SaveSteps.h"

#include "platform/win32/FileHandle.h"

namespace tq {
namespace {

constexpr int kSharingTries = 50;
constexpr DWORD kSharingPause = 10; // milliseconds; together the half second of FileAccess.h
// What the temporary file takes over from the target.
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

// Errors that concern the way of replacing (rights on the directory, somebody who holds the target
// or has mapped it), not the disk.
StepResult WhyNotReplaced() {
  switch (::GetLastError()) {
  case ERROR_ACCESS_DENIED:
  case ERROR_SHARING_VIOLATION:
  case ERROR_LOCK_VIOLATION:
  case ERROR_USER_MAPPED_FILE:
  case ERROR_NOT_SAME_DEVICE:
  case ERROR_FILENAME_EXCED_RANGE:
  case ERROR_CANT_ACCESS_FILE:
    return StepResult::Refused;
  default:
    return StepResult::Failed;
  }
}

// Longer names need a form that not every program of the user opens files by.
bool IsTooLong(const std::wstring& path) {
  return path.size() >= MAX_PATH && !path.starts_with(L"\\\\?\\");
}

// Opens a file that another program may hold for a moment without sharing it, as a second saver or
// a program that copies it does.
bool OpenPatiently(FileHandle& file, const std::wstring& path, DWORD disposition) {
  for (int i = 0; i < kSharingTries; ++i) {
    if (file.Open(path, GENERIC_WRITE, kShareAll, disposition))
      return true;
    if (::GetLastError() != ERROR_SHARING_VIOLATION)
      return false;
    ::Sleep(kSharingPause);
  }
  return false;
}

class WindowsSaveSteps : public SaveSteps {
public:
  explicit WindowsSaveSteps(const char* path) : target_(SystemPath(path)) {}

  StepResult OpenTarget() override;
  StepResult OpenTemporary() override;
  std::size_t WriteTemporary(const void* bytes, std::size_t size) override {
    return temporaryFile_.WriteOnce(bytes, size);
  }
  bool FlushTemporary() override { return ::FlushFileBuffers(temporaryFile_.Get()) != 0; }
  StepResult ReplaceTarget() override;
  void FlushDirectory() override {} // MOVEFILE_WRITE_THROUGH has done it
  void RemoveTemporary() override;
  bool ReserveTarget(std::size_t size) override;
  std::size_t WriteTarget(const void* bytes, std::size_t size) override {
    return targetFile_.WriteOnce(bytes, size);
  }
  bool FlushTarget(std::size_t size) override;
  bool CloseTarget() override { return targetFile_.Close(); }
  void RemoveNewTarget() override;

private:
  void FollowLink();
  StepResult EmptyTemporary(bool found);
  bool SetTargetLength(LONGLONG length);

  std::wstring target_;
  std::wstring temporary_;
  FileHandle targetFile_;
  FileHandle temporaryFile_;
  DWORD attributes_ = 0; // the target's before the save, when existed_
  bool existed_ = false;
  bool created_ = false; // in place, by this save
};

StepResult WindowsSaveSteps::OpenTarget() {
  const bool opened = OpenPatiently(targetFile_, target_, OPEN_EXISTING);
  if (!opened && ::GetLastError() != ERROR_FILE_NOT_FOUND)
    return StepResult::Failed;
  existed_ = opened;
  if (opened) {
    attributes_ = ::GetFileAttributesW(target_.c_str());
    // Where the superuser runs Wine, a read-only file lets itself be opened.
    if (attributes_ == INVALID_FILE_ATTRIBUTES || (attributes_ & FILE_ATTRIBUTE_READONLY) != 0)
      return StepResult::Failed;
    if ((attributes_ & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
      FollowLink();
    // The system replaces no file that is open, not even by us.
    targetFile_.Close();
  }
  for (const char* c = kTemporarySuffix; *c != '\0'; ++c)
    temporary_.push_back(static_cast<wchar_t>(*c));
  temporary_.insert(0, target_);
  return opened ? StepResult::Ok : StepResult::Missing;
}

// The file that a symbolic link names is replaced, not the link.
void WindowsSaveSteps::FollowLink() {
  std::wstring real(32'768, L'\0'); // the longest path there is
  const DWORD length = ::GetFinalPathNameByHandleW(
      targetFile_.Get(), real.data(), static_cast<DWORD>(real.size()), FILE_NAME_NORMALIZED);
  if (length == 0 || length >= real.size())
    return;
  real.resize(length);
  target_ = real;
}

// The temporary file is open; `found` when it was there before, perhaps with what a killed save
// left in it. Missing: it was none of ours and its name is free now.
StepResult WindowsSaveSteps::EmptyTemporary(bool found) {
  BY_HANDLE_FILE_INFORMATION info;
  if (::GetFileInformationByHandle(temporaryFile_.Get(), &info) == 0)
    return StepResult::Failed;
  if (info.nNumberOfLinks > 1 || (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    // A link, or a second name of another file, perhaps of the target itself: the name goes, the
    // file stays.
    temporaryFile_.Close();
    return ::DeleteFileW(temporary_.c_str()) != 0 ? StepResult::Missing : StepResult::Refused;
  }
  if (!found)
    return StepResult::Ok;
  ::SetFileAttributesW(temporary_.c_str(),
                       FILE_ATTRIBUTE_ARCHIVE | (attributes_ & kKeptAttributes));
  return ::SetEndOfFile(temporaryFile_.Get()) != 0 ? StepResult::Ok : StepResult::Failed;
}

StepResult WindowsSaveSteps::OpenTemporary() {
  if (IsTooLong(temporary_))
    return StepResult::Refused;
  // Shared for deletion alone, so that it can be renamed while it is open: from its creation until
  // it bears the target's name no other save can write into it.
  for (int i = 0; i < kSharingTries; ++i) {
    if (temporaryFile_.Open(temporary_, GENERIC_WRITE, FILE_SHARE_DELETE, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_ARCHIVE | (attributes_ & kKeptAttributes) |
                                FILE_FLAG_OPEN_REPARSE_POINT)) {
      const StepResult result = EmptyTemporary(::GetLastError() == ERROR_ALREADY_EXISTS);
      if (result != StepResult::Missing)
        return result;
      continue;
    }
    if (::GetLastError() != ERROR_SHARING_VIOLATION)
      return WhyNotReplaced();
    ::Sleep(kSharingPause);
  }
  return StepResult::Failed;
}

StepResult WindowsSaveSteps::ReplaceTarget() {
  if (::MoveFileExW(temporary_.c_str(), target_.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0)
    return WhyNotReplaced();
  temporaryFile_.Close();
  return StepResult::Ok;
}

void WindowsSaveSteps::RemoveTemporary() {
  if (!temporaryFile_.IsOpen())
    return;
  ::DeleteFileW(temporary_.c_str());
  temporaryFile_.Close();
}

bool WindowsSaveSteps::SetTargetLength(LONGLONG length) {
  LARGE_INTEGER position;
  position.QuadPart = length;
  return ::SetFilePointerEx(targetFile_.Get(), position, nullptr, FILE_BEGIN) != 0 &&
         ::SetEndOfFile(targetFile_.Get()) != 0;
}

bool WindowsSaveSteps::ReserveTarget(std::size_t size) {
  if (!OpenPatiently(targetFile_, target_, existed_ ? OPEN_EXISTING : CREATE_NEW))
    return false;
  created_ = !existed_;
  LARGE_INTEGER old;
  LARGE_INTEGER start = {};
  if (::GetFileSizeEx(targetFile_.Get(), &old) == 0)
    return false;
  const auto wanted = static_cast<LONGLONG>(size);
  if (wanted > old.QuadPart && !SetTargetLength(wanted)) {
    SetTargetLength(old.QuadPart);
    return false;
  }
  return ::SetFilePointerEx(targetFile_.Get(), start, nullptr, FILE_BEGIN) != 0;
}

bool WindowsSaveSteps::FlushTarget(std::size_t size) {
  return SetTargetLength(static_cast<LONGLONG>(size)) && ::FlushFileBuffers(targetFile_.Get()) != 0;
}

void WindowsSaveSteps::RemoveNewTarget() {
  if (created_)
    ::DeleteFileW(target_.c_str());
}

} // namespace

std::unique_ptr<SaveSteps> MakeSaveSteps(const char* path) {
  return std::make_unique<WindowsSaveSteps>(path);
}

} // namespace tq
