// The current resources: those in which dialog templates and strings are looked up. Each library
// has its own, and a terminal's libraries call each other. So an operation that opens a dialog
// makes its own library's resources current and restores the previous ones on every path. A
// ResourceContext on its stack does both.
//
// For the thread of the terminal's windows only.
#pragma once

#include "platform/framework/CString.h"
#include "platform/framework/window/DialogTemplate.h"

namespace tq {

struct Resources {
  // The language that texts are taken in: 1028 when true, else 2052.
  bool traditional = true;
  // On Windows the HINSTANCE of the module whose DIALOG resources are meant. Not used elsewhere.
  void* module = nullptr;
  // Elsewhere the library's templates. Not used on Windows.
  const TemplateRow* rows = nullptr;
  size_t rowCount = 0;
  // The library's string table: UTF-8, static, null for an entry that it lacks. As tqSymbolString.
  // May be null: no strings.
  const char* (*string)(unsigned id, int traditional) = nullptr;
  // A text from UTF-8 to the process's ANSI code page. Null: the bytes as they are.
  CString (*toAnsi)(const char* utf8) = nullptr;
};

class TQFRAMEWORK_API ResourceContext {
public:
  // Copied. Contexts end in the opposite order of their making.
  explicit ResourceContext(const Resources& resources);
  ~ResourceContext();
  ResourceContext(const ResourceContext&) = delete;
  ResourceContext& operator=(const ResourceContext&) = delete;

  // Those in force; without any template or string while there is no context.
  static const Resources& Current();
  // An entry of the string table in force, in its language; empty for one that it lacks.
  static CString Text(unsigned id);

private:
  Resources before_;
};

} // namespace tq
