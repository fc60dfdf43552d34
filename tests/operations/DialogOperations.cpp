// The dialogs. Something must end them: see EndDialogs in Subject.h.
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

} // namespace

Table DialogOperations() {
  return {
      {"DoSearchFinIndi(HWND__*, CString const&, CString&, CString&)",
       [](Manager&, const Arguments& a) {
         CString name;
         CString code;
         Manager::DoSearchFinIndi(nullptr, a.text, name, code);
       }},
      {"DoSearchCommIndi(HWND__*, CString const&, CString&, CString&, CString const&, "
       "CString const&, InfoType)",
       [](Manager&, const Arguments& a) {
         CString name;
         CString code;
         Manager::DoSearchCommIndi(nullptr, a.text, name, code, a.name, a.symbols,
                                   static_cast<InfoType>(10));
       }},
      {"DoSearchOptionIndi(HWND__*, CString const&, CString&, CString&, CString&)",
       [](Manager&, const Arguments& a) {
         CString out[3];
         Manager::DoSearchOptionIndi(nullptr, a.text, out[0], out[1], out[2]);
       }},
      {"EndDomodal(HWND__*, int)",
       [](Manager&, const Arguments& a) { Manager::EndDomodal(nullptr, a.number); }},
  };
}

} // namespace operations
