#include "platform/framework/window/ResourceContext.h"

namespace tq {

namespace {

Resources current;

} // namespace

ResourceContext::ResourceContext(const Resources& resources) : before_(current) {
  current = resources;
}

ResourceContext::~ResourceContext() {
  current = before_;
}

const Resources& ResourceContext::Current() {
  return current;
}

CString ResourceContext::Text(unsigned id) {
  const char* const utf8 =
      current.string == nullptr ? nullptr : current.string(id, current.traditional);
  if (utf8 == nullptr)
    return CString();
  return current.toAnsi == nullptr ? CString(utf8) : current.toAnsi(utf8);
}

} // namespace tq
