// Small helpers. A name may have any character but those that no file name has.
#include <tqUtil.h>

#include <CString.h>

int CCheckFileName::IsValidName(CWnd*, const char* name, int) {
  const CString text = name;
  if (text.IsEmpty() || text.FindOneOf("\\/:*?\"<>|") != -1)
    return 0;
  for (const char* at = text; *at != '\0'; ++at)
    if (static_cast<unsigned char>(*at) < ' ')
      return 0;
  return 1;
}
