// The user's extra values, of which there are none.
#include <TQSObj.h>

int TQSGetUserExtraValue(const char*, const char*, char*, int) {
  return 0;
}
