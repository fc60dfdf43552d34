#include <climits>

#include "platform/framework/window/CComboBox.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr int kCombo = 761;

class ComboBoxTest : public WindowTest {
protected:
  // A box with entries A, B, C and data 10, 20, 30.
  void InBox(const std::function<void(User&, TestDialog&, CComboBox)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CComboBox combo(dialog, kCombo);
      int data = 0;
      for (const char* text : {"A", "B", "C"})
        combo.SetItemData(combo.AddString(text), data += 10);
      script(user, dialog, combo);
    });
  }
};

TEST_F(ComboBoxTest, ANewBoxIsEmpty) {
  InDialog([](User& user, TestDialog& dialog) {
    const CComboBox combo(dialog, kCombo);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_TRUE(combo.GetText().IsEmpty());
    EXPECT_EQ(user.Rows(kCombo), std::vector<std::string>());
    EXPECT_FALSE(user.Select(kCombo, 0));
  });
}

TEST_F(ComboBoxTest, AddingAppendsAndChoosesNothing) {
  InBox([](User& user, TestDialog&, CComboBox combo) {
    EXPECT_EQ(combo.InsertString(0, "z"), 0);
    EXPECT_EQ(combo.InsertString(4, "end"), 4);
    EXPECT_EQ(combo.InsertString(-1, nullptr), 5);
    EXPECT_EQ(user.Rows(kCombo), (std::vector<std::string>{"z", "A", "B", "C", "end", ""}));
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetItemData(0), 0);
    EXPECT_EQ(combo.GetItemData(2), 20);
  });
}

TEST_F(ComboBoxTest, IndexOutOfRangeChangesNothing) {
  InBox([](User& user, TestDialog&, CComboBox combo) {
    combo.SetCurSel(1);
    for (const int index : {-2, 4, INT_MIN, INT_MAX})
      EXPECT_EQ(combo.InsertString(index, "x"), -1) << index;
    for (const int index : {-2, 3, INT_MIN, INT_MAX})
      EXPECT_FALSE(combo.SetCurSel(index)) << index;
    for (const int index : {-1, 3, INT_MIN, INT_MAX}) {
      EXPECT_FALSE(combo.DeleteString(index)) << index;
      EXPECT_FALSE(combo.SetItemData(index, 1)) << index;
      EXPECT_EQ(combo.GetItemData(index), 0) << index;
      EXPECT_TRUE(combo.GetItemText(index).IsEmpty()) << index;
    }
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(user.Rows(kCombo), (std::vector<std::string>{"A", "B", "C"}));
  });
}

TEST_F(ComboBoxTest, ChoosingAndClearing) {
  InBox([](User& user, TestDialog&, CComboBox combo) {
    EXPECT_TRUE(combo.SetCurSel(2));
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(user.Text(kCombo), "C");
    EXPECT_TRUE(combo.SetCurSel(-1));
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(user.Text(kCombo), "");
    combo.SetCurSel(0);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(user.Text(kCombo), "");
  });
}

TEST_F(ComboBoxTest, TheChoiceStaysWithItsEntry) {
  InBox([](User& user, TestDialog&, CComboBox combo) {
    combo.SetCurSel(1);
    combo.InsertString(0, "front");
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(user.Text(kCombo), "B");
    combo.DeleteString(0);
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.DeleteString(2);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(user.Text(kCombo), "B");
    combo.DeleteString(1);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(user.Text(kCombo), "");
  });
}

TEST_F(ComboBoxTest, DuplicateTextsAreEntriesOfTheirOwn) {
  InDialog([](User& user, TestDialog& dialog) {
    CComboBox combo(dialog, kCombo);
    for (int i = 0; i < 3; ++i)
      combo.SetItemData(combo.AddString("same"), i + 1);
    EXPECT_TRUE(user.Select(kCombo, 1));
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.GetItemData(combo.GetCurSel()), 2);
  });
}

TEST_F(ComboBoxTest, SettingDoesNotNotify) {
  InBox([](User&, TestDialog& dialog, CComboBox combo) {
    combo.SetCurSel(1);
    combo.SetText("C");
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.DeleteString(1);
    combo.SetFocus();
    combo.ResetContent();
    actions::Settle();
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ComboBoxTest, PickingAnEntryTells) {
  InBox([](User& user, TestDialog& dialog, CComboBox combo) {
    int seen = -1;
    dialog.onCommand = [&](int, WindowEvent) { seen = combo.GetCurSel(); };
    EXPECT_TRUE(user.Select(kCombo, "B"));
    EXPECT_EQ(dialog.Take(), Log{"761 selection"});
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(combo.HasFocus());
    EXPECT_TRUE(user.Select(kCombo, 0));
    EXPECT_EQ(dialog.Take(), Log{"761 selection"});
    EXPECT_FALSE(user.Select(kCombo, "D"));
    EXPECT_FALSE(user.Select(kCombo, 3));
    EXPECT_FALSE(user.Select(kCombo, -1));
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ComboBoxTest, KeysMoveTheChoice) {
  InBox([](User& user, TestDialog& dialog, CComboBox combo) {
    combo.SetCurSel(0);
    combo.SetFocus();
    user.Press(WindowKey::Down);
    EXPECT_EQ(combo.GetCurSel(), 1);
    user.Press(WindowKey::End);
    EXPECT_EQ(combo.GetCurSel(), 2);
    user.Press(WindowKey::Home);
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(dialog.log, Log(3, "761 selection"));
  });
}

TEST_F(ComboBoxTest, ADisabledBoxTakesNoPick) {
  InDialog([](User& user, TestDialog& dialog) {
    CComboBox combo(dialog, 762);
    combo.AddString("x");
    EXPECT_FALSE(user.Select(762, 0));
    EXPECT_EQ(combo.GetCurSel(), -1);
    combo.EnableWindow();
    EXPECT_TRUE(user.Select(762, 0));
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(dialog.log, Log{"762 selection"});
  });
}

TEST_F(ComboBoxTest, DoubleByteText) {
  InBox([](User& user, TestDialog&, CComboBox combo) {
    const CString tricky = TrickyText();
    combo.SetCurSel(combo.AddString(tricky));
    EXPECT_EQ(combo.GetText(), tricky);
    EXPECT_EQ(combo.GetItemText(3), tricky);
    EXPECT_TRUE(user.Select(kCombo, Utf8(tricky)));
  });
}

TEST_F(ComboBoxTest, TenThousandEntries) {
  InDialog([](User& user, TestDialog& dialog) {
    CComboBox combo(dialog, kCombo);
    for (int i = 0; i < 10000; ++i)
      combo.SetItemData(combo.AddString(std::to_string(i).c_str()), i);
    EXPECT_EQ(combo.GetCount(), 10000);
    EXPECT_TRUE(user.Select(kCombo, 9999));
    EXPECT_EQ(combo.GetItemData(combo.GetCurSel()), 9999);
  });
}

TEST_F(ComboBoxTest, WithoutAWindowItIsAnEmptyBox) {
  CComboBox combo;
  EXPECT_EQ(combo.AddString("x"), -1);
  EXPECT_EQ(combo.InsertString(-1, "x"), -1);
  EXPECT_FALSE(combo.DeleteString(0));
  combo.ResetContent();
  EXPECT_EQ(combo.GetCount(), 0);
  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_FALSE(combo.SetCurSel(-1));
  EXPECT_TRUE(combo.GetItemText(0).IsEmpty());
}

} // namespace
