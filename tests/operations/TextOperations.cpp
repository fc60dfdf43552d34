// The operations of no class: text of a terminal in UTF-8, its paths, the string table, versions.
#include "platform/interface/TQSymbolStrings.h"
#include "platform/interface/TQSymbolText.h"
#include "platform/interface/TQSymbolVersion.h"
#include "tests/operations/Operations.h"

namespace operations {

Table TextOperations() {
  return {
      {"TQFromUtf8(char const*)",
       [](CTQSymbolListMgr&, const Arguments& a) { TQFromUtf8(a.Text(a.name)); }},
      {"TQToUtf8(char const*)",
       [](CTQSymbolListMgr&, const Arguments& a) { TQToUtf8(a.Text(a.name)); }},
      {"TQSystemPath(char const*)",
       [](CTQSymbolListMgr&, const Arguments& a) { TQSystemPath(a.Text(a.directory)); }},
      {"tqSymbolVersion", [](CTQSymbolListMgr&, const Arguments&) { tqSymbolVersion(); }},
      {"tqSymbolString",
       [](CTQSymbolListMgr&, const Arguments& a) {
         tqSymbolString(static_cast<unsigned>(a.number), a.flag);
       }},
  };
}

} // namespace operations
