// Cloud lists, in the map and of kind 8.
#include "tests/operations/CopiesOfLists.h"
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

} // namespace

Table CloudOperations() {
  return {
      {"ClearCloudSymbolList()", [](Manager& m, const Arguments&) { m.ClearCloudSymbolList(); }},
      {"SetCloudeList(CString const&, CString const&, CString const&)",
       [](Manager& m, const Arguments& a) { m.SetCloudeList(a.id, a.name, a.symbols); }},
      {"UpdateCloudSymbolList(CString const&, CString const&, CString const&)",
       [](Manager& m, const Arguments& a) { m.UpdateCloudSymbolList(a.group, a.name, a.symbols); }},
      {"UpdateCloudSymbolList(CString const&, int, CString const&, CString const&, int)",
       [](Manager& m, const Arguments& a) {
         m.UpdateCloudSymbolList(a.id, a.type, a.name, a.symbols, a.flag);
       }},
      {"AddCloudSymbolList(CString const&, CString const&, CString const&, int)",
       [](Manager& m, const Arguments& a) {
         m.AddCloudSymbolList(a.id, a.name, a.symbols, a.flag);
       }},
      {"SetCloudSymbolList(CPtrArray*, int)",
       [](Manager& m, const Arguments& a) {
         CopiesOfLists copies(m, a);
         m.SetCloudSymbolList(copies.Lists(), a.number);
       }},
      {"GetCloudeList()", [](Manager& m, const Arguments&) { m.GetCloudeList(); }},
      {"UpdateCloudGroup(void*)",
       [](Manager& m, const Arguments& a) {
         void* handle = nullptr;
         m.GetGroupHandle(201, "PICK", &handle, 0);
         m.UpdateCloudGroup(a.nulls ? nullptr : handle);
       }},
      {"RefreshCloudeSymbol()", [](Manager& m, const Arguments&) { m.RefreshCloudeSymbol(); }},
  };
}

} // namespace operations
