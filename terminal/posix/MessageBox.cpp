// Message boxes over the dialog that is up, where dialogs are on the screen: a dialog itself.
#include "terminal/control/MessageBox.h"

#include <algorithm>
#include <dlfcn.h>
#include <optional>

#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/ResourceContext.h"
#include "platform/headless/Queue.h"
#include "platform/headless/Screen.h"
#include "terminal/control/Reports.h"
#include "terminal/posix/BoxLines.h"

namespace standin {
namespace {

constexpr int kTemplate = 1;
constexpr int kText = 100;

struct BoxButton {
  int id; // the answer
  const char* traditional;
  const char* simplified;
};
constexpr BoxButton kOk = {CDialog::Accepted, "確定(&K)", "确定(&K)"};
constexpr BoxButton kCancel = {CDialog::Cancelled, "取消(&C)", "取消(&C)"};
constexpr BoxButton kYes = {6, "是(&Y)", "是(&Y)"};
constexpr BoxButton kNo = {7, "否(&N)", "否(&N)"};

// None for a box of another type than the library's.
std::vector<BoxButton> ButtonsOf(unsigned type) {
  switch (type) {
  case 0:
    return {kOk};
  case 1:
    return {kOk, kCancel};
  case 3:
    return {kYes, kNo, kCancel};
  case 4:
    return {kYes, kNo};
  default:
    return {};
  }
}

// Of the string table that a module exports, as modules have no resources here; empty when it has
// no such entry.
std::string EntryOf(void* module, unsigned id) {
  Dl_info info{};
  if (module == nullptr || ::dladdr(module, &info) == 0)
    return {};
  void* const library = ::dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
  if (library == nullptr)
    return {};
  using StringOf = const char* (*)(unsigned id, int traditional);
  const auto stringOf = reinterpret_cast<StringOf>(::dlsym(library, "tqSymbolString"));
  const int traditional = InterfaceLanguage() == Language::Traditional ? 1 : 0;
  const char* const text = stringOf == nullptr ? nullptr : stringOf(id, traditional);
  const std::string entry = text == nullptr ? "" : text;
  ::dlclose(library);
  return entry;
}

CString ToBoxText(const char* utf8) {
  return CString(ToAnsi(utf8).c_str());
}

// A label takes an ampersand for the mark of a letter.
std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (!text.empty())
      text += '\n';
    for (const char each : line)
      text.append(each == '&' ? 2 : 1, each);
  }
  return text;
}

// The rows of the template, as wide and as high as the text wants. In dialog units.
std::vector<tq::TemplateRow> RowsFor(const BoxLines& text, const std::vector<BoxButton>& buttons) {
  constexpr int kBorder = 10;
  constexpr int kGap = 6;
  constexpr int kButtonWidth = 50;
  constexpr int kButtonHeight = 14;
  const int count = static_cast<int>(buttons.size());
  const int across = count * (kButtonWidth + kGap) - kGap;
  const int labelWidth = std::max({text.widest * 5, across, 100});
  const int labelHeight = static_cast<int>(text.lines.size()) * 8 + 2;
  const int width = labelWidth + 2 * kBorder;
  const int top = kBorder + labelHeight + kBorder;
  const auto row = [](tq::ControlKind kind, int id, int x, int y, int w, int h, unsigned style,
                      const BoxButton& texts) {
    return tq::TemplateRow{kind,
                           id,
                           static_cast<short>(x),
                           static_cast<short>(y),
                           static_cast<short>(w),
                           static_cast<short>(h),
                           style,
                           texts.traditional,
                           texts.simplified};
  };
  std::vector<tq::TemplateRow> rows;
  rows.push_back(row(tq::ControlKind::Dialog, kTemplate, 0, 0, width, top + kButtonHeight + kBorder,
                     0, {0, "行情終端", "行情终端"}));
  rows.push_back(row(tq::ControlKind::Label, kText, kBorder, kBorder, labelWidth, labelHeight, 0,
                     {0, "", ""}));
  int x = (width - across) / 2;
  for (const BoxButton& button : buttons) {
    const unsigned style = rows.size() == 2 ? tq::TemplateDefault : tq::TemplatePlain;
    rows.push_back(row(tq::ControlKind::Button, button.id, x, top, kButtonWidth, kButtonHeight,
                       style, button));
    x += kButtonWidth + kGap;
  }
  return rows;
}

tq::Resources ResourcesOf(const std::vector<tq::TemplateRow>& rows) {
  tq::Resources resources;
  resources.traditional = InterfaceLanguage() == Language::Traditional;
  resources.rows = rows.data();
  resources.rowCount = rows.size();
  resources.toAnsi = ToBoxText;
  return resources;
}

class Box : public CDialog {
public:
  Box(const CWnd& parent, const BoxLines& text, const std::vector<BoxButton>& buttons)
      : CDialog(kTemplate, &parent), text_(Joined(text.lines)), buttons_(buttons),
        rows_(RowsFor(text, buttons)), context_(ResourcesOf(rows_)) {}

protected:
  bool OnInitDialog() override {
    context_.reset(); // handlers of the dialogs behind run meanwhile, with the library's
    CWnd(*this, kText).SetText(ToBoxText(text_.c_str()).GetString());
    return true;
  }

  // Escape and the title bar: Cancel, or OK where that is all there is. A question of yes and no is
  // to be answered.
  void OnCancel() override {
    if (buttons_.size() == 1 || buttons_.back().id == Cancelled)
      EndDialog(buttons_.back().id);
  }

  void OnCommand(int id, WindowEvent) override { EndDialog(id); }

private:
  std::string text_;
  std::vector<BoxButton> buttons_;
  std::vector<tq::TemplateRow> rows_;
  std::optional<tq::ResourceContext> context_;
};

// The scripts that act as the user are for the library's dialogs.
class NoScript {
public:
  NoScript() : before_(tq::SetModalHandler(nullptr)) {}
  ~NoScript() { tq::SetModalHandler(before_); }
  NoScript(const NoScript&) = delete;
  NoScript& operator=(const NoScript&) = delete;

private:
  tq::ModalHandler before_;
};

} // namespace

int ShowBox(const Message& message) {
  if (tq::headless::CurrentScreen() == nullptr || tq::headless::Running().empty())
    return 0;
  const std::string text =
      message.id == 0 ? FromAnsi(message.text) : EntryOf(message.resources, message.id);
  const std::vector<BoxButton> buttons = ButtonsOf(message.type);
  if (text.empty() || buttons.empty())
    return 0;
  const NoScript noScript;
  const CWnd parent(tq::headless::Running().back()->handle);
  const int pressed = Box(parent, BreakForBox(text), buttons).DoModal();
  return pressed == CDialog::Failed ? 0 : pressed;
}

} // namespace standin
