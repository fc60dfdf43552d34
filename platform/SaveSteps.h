// The steps of one crash-safe save, each a system call or two, and the order in which they are
// taken. Apart, so that a test fails or ends the process at each of them.
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

// One save of one file. The steps are called by RunSave only, in the order in which they stand
// here. Destroying the object closes what is open and leaves files as they are.
class SaveSteps {
public:
  virtual ~SaveSteps() = default;

  // Opens the target for writing without changing it. Ok, Missing or Failed.
  virtual StepResult OpenTarget() = 0;

  // Opens an empty temporary file beside the target, for this process alone, with the target's
  // attributes. Ok, Refused or Failed.
  virtual StepResult OpenTemporary() = 0;
  // Writes with one call. Returns the bytes written; fewer than `size` is a failure.
  virtual std::size_t WriteTemporary(const void* bytes, std::size_t size) = 0;
  // Brings the temporary file's bytes to the disk.
  virtual bool FlushTemporary() = 0;
  // Lets the temporary file take the target's place in one step and closes it. Ok, Refused or
  // Failed; unless Ok, the target is as it was.
  virtual StepResult ReplaceTarget() = 0;
  // Makes the replacement survive a power failure. A failure changes nothing about the files.
  virtual void FlushDirectory() = 0;
  // Closes and deletes the temporary file, if there is one.
  virtual void RemoveTemporary() = 0;

  // Opens the target in place, creating it when it was missing, and reserves room for `size` bytes
  // without changing the old ones. False when there is no room, with the target as it was.
  virtual bool ReserveTarget(std::size_t size) = 0;
  // Writes over the target's start with one call. Returns the bytes written.
  virtual std::size_t WriteTarget(const void* bytes, std::size_t size) = 0;
  // Cuts the target after `size` bytes and brings them to the disk.
  virtual bool FlushTarget(std::size_t size) = 0;
  virtual bool CloseTarget() = 0;
  // Deletes a target that this save created and could not fill; an older one stays.
  virtual void RemoveNewTarget() = 0;
};

// Takes the steps. NotOpened when neither the target nor a file in its place could be opened.
SaveResult RunSave(SaveSteps& steps, const void* bytes, std::size_t size);

// The operating system's steps for the file at `path` (see FileAccess.h for paths). Never null.
std::unique_ptr<SaveSteps> MakeSaveSteps(const char* path);

// The temporary file's name is the target's with this behind it.
inline constexpr char kTemporarySuffix[] = ".tmp";

} // namespace tq
