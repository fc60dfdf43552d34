// A crash-safe save, split into steps of one or two system calls, so that a test can fail or kill
// the process at each of them.
#pragma once

#include <cstddef>
#include <memory>

#include "platform/FileAccess.h"

namespace tq {

enum class StepResult {
  Ok,
  Missing, // OpenTarget only: there is no such file yet
  Refused, // the system does not allow this way of saving; writing in place may still work
  Failed,  // the save cannot succeed: the disk is full or broken, the file may not be written
};

// One save of one file. RunSave calls the steps, in the order in which they are declared. The
// destructor closes what is open and leaves the files as they are.
class SaveSteps {
public:
  virtual ~SaveSteps() = default;

  // Opens the target for writing without changing it. Ok, Missing or Failed.
  virtual StepResult OpenTarget() = 0;

  // Opens an empty temporary file beside the target, exclusively for this process and with the
  // target's attributes. Ok, Refused or Failed.
  virtual StepResult OpenTemporary() = 0;
  // Writes with one call. Returns the bytes written; fewer than `size` is a failure.
  virtual std::size_t WriteTemporary(const void* bytes, std::size_t size) = 0;
  // Flushes the temporary file to the disk.
  virtual bool FlushTemporary() = 0;
  // Atomically replaces the target by the temporary file and closes it. Ok, Refused or Failed;
  // unless Ok, the target is as it was.
  virtual StepResult ReplaceTarget() = 0;
  // Makes the replacement survive a power failure. A failure changes nothing about the files.
  virtual void FlushDirectory() = 0;
  // Closes and deletes the temporary file, if there is one.
  virtual void RemoveTemporary() = 0;

  // Opens the target in place, creating it when it was missing, and reserves room for `size` bytes
  // without changing the old ones. False when there is no room, with the target as it was.
  virtual bool ReserveTarget(std::size_t size) = 0;
  // Overwrites the target from its start with one call. Returns the bytes written.
  virtual std::size_t WriteTarget(const void* bytes, std::size_t size) = 0;
  // Truncates the target to `size` bytes and flushes it to the disk.
  virtual bool FlushTarget(std::size_t size) = 0;
  virtual bool CloseTarget() = 0;
  // Deletes a target that this save created and could not fill; one that existed before stays.
  virtual void RemoveNewTarget() = 0;
};

// Runs the steps. NotOpened when neither the target nor a file in its place could be opened.
SaveResult RunSave(SaveSteps& steps, const void* bytes, std::size_t size);

// The operating system's steps for the file at `path` (see FileAccess.h for paths). Never null.
std::unique_ptr<SaveSteps> MakeSaveSteps(const char* path);

// The suffix of the temporary file's name, behind the target's.
inline constexpr char kTemporarySuffix[] = ".tmp";

} // namespace tq
