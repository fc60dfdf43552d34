#include "platform/SaveSteps.h"

namespace tq {
namespace {

// The temporary file is open.
StepResult SaveByReplacing(SaveSteps& steps, const void* bytes, std::size_t size) {
  StepResult result = StepResult::Failed;
  if (steps.WriteTemporary(bytes, size) == size && steps.FlushTemporary())
    result = steps.ReplaceTarget();
  if (result == StepResult::Ok)
    steps.FlushDirectory();
  else
    steps.RemoveTemporary();
  return result;
}

// The target is open, with room for the bytes.
SaveResult SaveInPlace(SaveSteps& steps, const void* bytes, std::size_t size) {
  const bool saved = steps.WriteTarget(bytes, size) == size && steps.FlushTarget(size);
  const bool closed = steps.CloseTarget();
  if (saved && closed)
    return SaveResult::Saved;
  steps.RemoveNewTarget();
  return SaveResult::Failed;
}

} // namespace

SaveResult RunSave(SaveSteps& steps, const void* bytes, std::size_t size) {
  const StepResult target = steps.OpenTarget();
  if (target == StepResult::Failed)
    return SaveResult::NotOpened;
  // A missing file counts as opened once the temporary file or the file itself could be created.
  const SaveResult nothingOpened =
      target == StepResult::Missing ? SaveResult::NotOpened : SaveResult::Failed;
  StepResult result = steps.OpenTemporary();
  if (result == StepResult::Failed)
    return nothingOpened;
  if (result == StepResult::Ok)
    result = SaveByReplacing(steps, bytes, size);
  if (result != StepResult::Refused)
    return result == StepResult::Ok ? SaveResult::Saved : SaveResult::Failed;
  if (steps.ReserveTarget(size))
    return SaveInPlace(steps, bytes, size);
  steps.CloseTarget();
  steps.RemoveNewTarget();
  return nothingOpened;
}

} // namespace tq
