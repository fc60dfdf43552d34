#include "platform/xml/XmlDocument.h"

#include <new>

#include "platform/xml/XmlText.h"

namespace tq {

bool XmlDocument::Load(const char* data, std::size_t size) {
  Clear();
  const LoadResult result = TryLoad(data, size);
  systemFailed_ = result == LoadResult::SystemFailed;
  return result == LoadResult::Ok;
}

// A text of 64 MB needs blocks of several times its size: a 32-bit terminal may lack those and still
// have all the memory that it needs otherwise. So running out is no reason to stop here.
XmlDocument::LoadResult XmlDocument::TryLoad(const char* data, std::size_t size) {
  try {
    XmlText text;
    if (PrepareXml(data, size, text) != XmlVerdict::Ok)
      return LoadResult::Refused;
    carried_ = text.carried;
    return Parse(text.utf8);
  } catch (const std::bad_alloc&) {
    return LoadResult::SystemFailed;
  }
}

} // namespace tq
