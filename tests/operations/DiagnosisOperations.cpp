// What went wrong, the log, the debug mode, and checks of texts.
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

} // namespace

Table DiagnosisOperations() {
  return {
      {"Init(TQInitOptions const&)",
       [](Manager& m, const Arguments& a) {
         TQInitOptions options;
         options.dataDirectory = a.Text(a.directory);
         options.bCN = a.number;
         options.buildTables = a.flag != 0;
         options.systemLists = a.other != 0;
         options.accountLists = a.flag != 0;
         m.Init(options);
       }},
      {"GetLastProblem(CString&)",
       [](Manager&, const Arguments&) {
         CString text;
         Manager::GetLastProblem(text);
       }},
      {"HasUnsavedChanges() const", [](Manager& m, const Arguments&) { m.HasUnsavedChanges(); }},
      {"SetLog(char const*, int, void (*)(void*, int, char const*), void*)",
       [](Manager&, const Arguments& a) { Manager::SetLog(nullptr, a.number, nullptr, nullptr); }},
      {"SetDebugMode(TQDebugMode)",
       [](Manager&, const Arguments& a) {
         Manager::SetDebugMode(a.flag != 0 ? TQDebugLog : TQDebugOff);
       }},
      {"CheckListName(CString const&)",
       [](Manager&, const Arguments& a) { Manager::CheckListName(a.name); }},
      {"CheckSymbolIds(CString const&)",
       [](Manager&, const Arguments& a) { Manager::CheckSymbolIds(a.symbols); }},
  };
}

} // namespace operations
