#include "terminal/desk/Resources.h"

void* desk::OwnModule() {
  return nullptr; // templates come from the table
}
