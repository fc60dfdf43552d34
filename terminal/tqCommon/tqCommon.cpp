#include "platform/services/tqCommon.h"

#include "platform/framework/window/CDialog.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

int IsTraditionChinese() {
  return InterfaceLanguage() == Language::Traditional ? 1 : 0;
}

int tqShowDllMessage(void* resources, unsigned id, unsigned type) {
  if (!Begin("tqShowDllMessage", id, type))
    return 0;
  return ReportMessage({id, type, resources, std::string()});
}

int tqShowMessageStr(const char* text, unsigned type) {
  if (!Begin("tqShowMessageStr", text, type))
    return 0;
  return ReportMessage({0, type, nullptr, text == nullptr ? "" : text});
}

int tqDoModal(CDialog* dialog, int first, int second, int third) {
  if (!Begin("tqDoModal", first, second, third) || dialog == nullptr)
    return CDialog::Failed;
  return dialog->DoModal();
}
