#include "platform/SaveSteps.h"

namespace tq {
namespace {

StepResult SaveByReplacing(SaveSteps& steps, const void* bytes, std::size_t size) {
  const StepResult opened = steps.OpenTemporary();
  if (opened != StepResult::Ok)
    return opened;
  StepResult result = StepResult::Failed;
  if (steps.WriteTemporary(bytes, size) == size && steps.FlushTemporary())
    result = steps.ReplaceTarget();
  if (result == StepResult::Ok)
    steps.FlushDirectory();
  else
    steps.RemoveTemporary();
  return result;
}

bool SaveInPlace(SaveSteps& steps, const void* bytes, std::size_t size) {
  const bool saved = steps.ReserveTarget(size) && steps.WriteTarget(bytes, size) == size &&
                     steps.FlushTarget(size);
  const bool closed = steps.CloseTarget();
  if (saved && closed)
    return true;
  steps.RemoveNewTarget();
  return false;
}

} // namespace

SaveResult RunSave(SaveSteps& steps, const void* bytes, std::size_t size) {
  if (steps.OpenTarget() == StepResult::Failed)
    return SaveResult::NotOpened;
  switch (SaveByReplacing(steps, bytes, size)) {
  case StepResult::Ok:
    return SaveResult::Saved;
  case StepResult::Refused:
    return SaveInPlace(steps, bytes, size) ? SaveResult::Saved : SaveResult::Failed;
  default:
    return SaveResult::Failed;
  }
}

} // namespace tq
