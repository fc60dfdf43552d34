// The contents of each dialog template: ids, kinds and texts. DialogLayoutTest checks the layout.
#include <gtest/gtest.h>

#include <set>

#include "terminal/StandIn.h"
#include "tests/dialogs/ExpectedTemplates.h"
#include "tests/dialogs/Templates.h"

namespace {

std::string Text(const char* text) {
  return text == nullptr ? "" : text;
}

class DialogTemplates : public testing::TestWithParam<ExpectedTemplate> {
protected:
  // An empty one when there is none.
  static Template Actual() {
    for (const Template& one : Templates()) {
      if (one.dialog.id == GetParam().id)
        return one;
    }
    return {};
  }
};

// Labels have no id and are identified by their texts.
bool IsFor(const tq::TemplateRow& row, const Expected& expected) {
  return row.kind == expected.kind && row.id == expected.id &&
         (row.id != 0 || Text(row.traditional) == expected.traditional);
}

TEST_P(DialogTemplates, HasItsTitle) {
  EXPECT_EQ(Text(Actual().dialog.traditional), GetParam().traditional);
  EXPECT_EQ(Text(Actual().dialog.simplified), GetParam().simplified);
}

TEST_P(DialogTemplates, HasItsControlsAndNoOthers) {
  const Template actual = Actual();
  EXPECT_EQ(actual.controls.size(), GetParam().rows.size());
  for (const Expected& expected : GetParam().rows) {
    SCOPED_TRACE(std::to_string(expected.id) + " " + expected.traditional);
    int found = 0;
    for (const tq::TemplateRow& row : actual.controls) {
      if (!IsFor(row, expected))
        continue;
      ++found;
      EXPECT_EQ(Text(row.traditional), expected.traditional);
      EXPECT_EQ(Text(row.simplified), expected.simplified);
      EXPECT_EQ(row.style, expected.style);
    }
    EXPECT_EQ(found, 1);
  }
}

TEST_P(DialogTemplates, HasEachIdOnce) {
  std::set<int> ids;
  for (const tq::TemplateRow& row : Actual().controls) {
    if (row.kind == tq::ControlKind::Label && row.id == 0)
      continue;
    EXPECT_TRUE(ids.insert(row.id).second) << row.id;
    EXPECT_GT(row.id, 0);
  }
  EXPECT_FALSE(ids.empty());
}

INSTANTIATE_TEST_SUITE_P(All, DialogTemplates, testing::ValuesIn(kExpected),
                         [](const auto& tested) { return std::to_string(tested.param.id); });

TEST(DialogTable, HasEachTemplateOnceAndNoOthers) {
  std::multiset<int> ids, expected;
  for (const Template& one : Templates())
    ids.insert(one.dialog.id);
  for (const ExpectedTemplate& one : kExpected)
    expected.insert(one.id);
  EXPECT_EQ(ids, expected);
}

// A process has one code page, so each run checks the texts of its own language.
TEST(DialogTable, TextsExistInTheCodePage) {
  const tq::Resources resources = tq::LibraryResources();
  int texts = 0;
  for (size_t i = 0; i < resources.rowCount; ++i) {
    const tq::TemplateRow& row = resources.rows[i];
    const std::string text = Text(resources.traditional ? row.traditional : row.simplified);
    const CString ansi = resources.toAnsi(text.c_str());
    EXPECT_EQ(standin::FromAnsi(ansi.GetString()), text);
    texts += text.empty() ? 0 : 1;
  }
  EXPECT_GT(texts, 50);
}

} // namespace
