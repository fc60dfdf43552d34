#include "tests/window/WindowTest.h"

#include <iterator>

#include "platform/services/tqCommon.h"
#include "tests/support/HeldObjects.h"
#include "tests/window/TestModule.h"

namespace {

// In this order: the macros, the templates, the end of the macros.
// clang-format off
constexpr tq::TemplateRow kRows[] = {
#include "platform/framework/window/DialogRows.inc"
#include "tests/window/TestDialogs.inc"
#include "platform/framework/window/DialogRowsEnd.inc"
};
// clang-format on

const char* NameOf(WindowEvent event) {
  static const char* const names[] = {"clicked", "selection", "double", "text", "focus", "left"};
  return names[static_cast<int>(event)];
}

const char* TestString(unsigned id, int traditional) {
  if (id != 1)
    return nullptr;
  return traditional != 0 ? "許功蓋" : "许功盖";
}

} // namespace

tq::Resources TestResources() {
  tq::Resources resources;
  resources.traditional = IsTraditionChinese() != 0;
  resources.module = TestModule();
  resources.rows = kRows;
  resources.rowCount = std::size(kRows);
  resources.string = TestString;
  resources.toAnsi = Ansi;
  return resources;
}

CString TrickyText() {
  return Ansi(IsTraditionChinese() != 0 ? "許功蓋" : "乗亅億");
}

Log TestDialog::Take() {
  Log taken;
  taken.swap(log);
  return taken;
}

bool TestDialog::OnInitDialog() {
  log.push_back("init");
  if (onInit)
    onInit();
  return focusFirst;
}

void TestDialog::OnOK() {
  log.push_back("ok");
  onOk ? onOk() : CDialog::OnOK();
}

void TestDialog::OnCancel() {
  log.push_back("cancel");
  onCancel ? onCancel() : CDialog::OnCancel();
}

void TestDialog::OnCommand(int id, WindowEvent event) {
  log.push_back(std::to_string(id) + " " + NameOf(event));
  if (onCommand)
    onCommand(id, event);
}

void TestDialog::OnNotify(int id, const WindowListNotice& notice) {
  const bool isDouble = notice.kind == WindowListNotice::Kind::DoubleClicked;
  log.push_back(std::to_string(id) +
                (isDouble ? " double " + std::to_string(notice.row) : " selection"));
  if (onNotify)
    onNotify(id, notice);
}

void TestDialog::OnTimer(unsigned id) {
  log.push_back("timer " + std::to_string(id));
  if (onTimer)
    onTimer(id);
}

intptr_t TestDialog::OnMessage(unsigned code, intptr_t first, intptr_t second) {
  log.push_back("message " + std::to_string(code - kFirstMessage) + " " + std::to_string(first) +
                " " + std::to_string(second));
  return onMessage ? onMessage(code, first, second) : 0;
}

bool TestDialog::OnKey(int id, WindowKey key, WindowHeldKeys held) {
  if (!onKey)
    return false;
  const char* const with = held.alt       ? " alt"
                           : held.control ? " control"
                           : held.shift   ? " shift"
                                          : "";
  log.push_back("key " + std::to_string(id) + " " + std::to_string(static_cast<int>(key)) + with);
  return onKey(id, key, held);
}

void TestDialog::OnItemLook(int id, int row, WindowItemLook& look) {
  if (onItemLook)
    onItemLook(id, row, look);
}

CString TestDialog::OnCellText(int id, int row, int column) {
  return onCellText ? onCellText(id, row, column) : CString();
}

WindowTest::WindowTest() : context_(TestResources()), held_(HeldObjects()) {}

WindowTest::~WindowTest() {
  EXPECT_EQ(TakeUnusedScripts(), 0U);
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
  EXPECT_EQ(HeldObjects(), held_) << "something of the operating system was left open";
}

void WindowTest::In(TestDialog& dialog, const UserScript& script) {
  const int code = RunDialog(dialog, [&](User& user) {
    dialog.Take();
    script(user);
    EXPECT_TRUE(user.IsUp());
    dialog.EndDialog(77);
  });
  EXPECT_EQ(code, 77);
}

void WindowTest::InDialog(const std::function<void(User&, TestDialog&)>& script) {
  TestDialog dialog;
  In(dialog, [&](User& user) { script(user, dialog); });
}
