#include "platform/services/tqUtil.h"

#include <string_view>

#include "platform/CodePage.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

constexpr std::string_view kRefused = "\\/:*?\"<>|";
constexpr unsigned kOkOnly = 0;

bool IsUsable(std::string_view name) {
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    if (byte < ' ' || kRefused.find(name[i]) != std::string_view::npos)
      return false;
    if (tq::IsLeadByte(name[i]))
      ++i; // the second byte may look like anything
  }
  return !name.empty();
}

std::string Complaint() {
  const bool traditional = InterfaceLanguage() == Language::Traditional;
  const std::string text =
      traditional ? "名稱不可為空白或含有下列字元：" : "名称不可为空白或含有下列字符：";
  return ToAnsi(text).append(kRefused);
}

} // namespace

int CCheckFileName::IsValidName(CWnd*, const char* name, int showMessage) {
  const bool proceed = Begin("CCheckFileName::IsValidName", name, showMessage);
  if (proceed && name && IsUsable(name))
    return 1;
  if (showMessage)
    ReportMessage({0, kOkOnly, nullptr, Complaint()});
  return 0;
}
