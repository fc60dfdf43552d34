// Templates in both languages, and the scope of a resource context.
#include "platform/framework/window/CButton.h"
#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/services/tqCommon.h"
#include "tests/window/WindowTest.h"

namespace {

class TemplateTest : public WindowTest {};

constexpr char kTraditionalScreen[] = R"(=== 視窗測試許功蓋
label: 地區:
label 701: 類別(&T)
combo 761: B (focus)
edit 741: typed
edit 742:
edit 743: (disabled)
edit 744: (hidden)
combo 762: (disabled)
list 781:
    one
  > two
list 782:
list 783:
list 784: (disabled)
table 791: Code | Name
  > 2330 | 台積電
button 801: 新增(&A)
button 802: 刪除(&D)
button 803: 預設 (disabled)
button 804: <up>
button 805: (hidden)
button 1: 確定(&K)
button 2: 取消(&C)
)";

constexpr char kSimplifiedScreen[] = R"(=== 窗口测试许功盖
label: 地区:
label 701: 类别(&T)
combo 761: B (focus)
edit 741: typed
edit 742:
edit 743: (disabled)
edit 744: (hidden)
combo 762: (disabled)
list 781:
    one
  > two
list 782:
list 783:
list 784: (disabled)
table 791: Code | Name
  > 2330 | 台积电
button 801: 新增(&A)
button 802: 删除(&D)
button 803: 默认 (disabled)
button 804: <up>
button 805: (hidden)
button 1: 确定(&K)
button 2: 取消(&C)
)";

void Fill(TestDialog& dialog, bool traditional) {
  CListCtrl table(dialog, 791);
  table.AddColumn("Code", 40);
  table.AddColumn("Name", 0);
  table.SetCellText(table.AddRow("2330"), 1, Ansi(traditional ? "台積電" : "台积电"));
  table.SetCurSel(0);
  CListBox box(dialog, 781);
  box.AddString("one");
  box.SetCurSel(box.AddString("two"));
  CComboBox combo(dialog, 761);
  combo.AddString("A");
  combo.SetCurSel(combo.AddString("B"));
  CEdit(dialog, 741).SetText("typed");
  CButton(dialog, 804).SetIcon(WindowButtonIcon::Up);
}

TEST_F(TemplateTest, ADialogAsText) {
  InDialog([](User& user, TestDialog& dialog) {
    const bool traditional = IsTraditionChinese() != 0;
    Fill(dialog, traditional);
    EXPECT_EQ(user.Screen(), traditional ? kTraditionalScreen : kSimplifiedScreen);
  });
}

TEST_F(TemplateTest, ManyRowsAreCutInTheText) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, 781);
    for (int i = 0; i < 25; ++i)
      box.AddString(std::to_string(i).c_str());
    const std::string screen = user.Screen();
    EXPECT_NE(screen.find("    19\n    and 5 more\n"), std::string::npos) << screen;
  });
}

TEST_F(TemplateTest, TheLanguageIsThatOfTheContext) {
  tq::Resources resources = TestResources();
  for (const bool traditional : {true, false}) {
    resources.traditional = traditional;
    const tq::ResourceContext context(resources);
    TestDialog dialog(101);
    std::string title;
    In(dialog, [&](User& user) { title = user.Title(); });
    EXPECT_EQ(title, "小"); // a text that both code pages and both languages share
    TestDialog other(103);
    In(other, [&](User& user) { title = user.Title(); });
    EXPECT_EQ(title, "空");
  }
}

TEST_F(TemplateTest, ContextsAreRestoredInOrder) {
  const char* const outer = tq::ResourceContext::Current().string(1, 1);
  EXPECT_STREQ(outer, "許功蓋");
  {
    tq::Resources other = TestResources();
    other.string = [](unsigned, int) -> const char* { return "other"; };
    const tq::ResourceContext context(other);
    EXPECT_EQ(tq::ResourceContext::Text(1), "other");
    {
      const tq::ResourceContext none(tq::Resources{});
      EXPECT_TRUE(tq::ResourceContext::Text(1).IsEmpty());
    }
    EXPECT_EQ(tq::ResourceContext::Text(1), "other");
  }
  EXPECT_EQ(tq::ResourceContext::Text(1), Ansi(IsTraditionChinese() != 0 ? "許功蓋" : "许功盖"));
  EXPECT_TRUE(tq::ResourceContext::Text(2).IsEmpty());
}

} // namespace
