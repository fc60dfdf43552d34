// The window's template: nothing overlaps or is cut off in either language, and each key is there
// once. Measures are dialog units.
#include <set>

#include "terminal/desk/Resources.h"
#include "tests/desk/DeskTest.h"
#include "tests/dialogs/Measure.h"

namespace {

constexpr int kMargin = 7;
constexpr int kGap = 4;

class DeskLayout : public testing::Test {
protected:
  DeskLayout() {
    const tq::Resources resources = desk::Resources();
    window = resources.rows[0];
    controls.assign(resources.rows + 1, resources.rows + resources.rowCount);
  }

  TemplateRow window;
  Controls controls;
};

TEST_F(DeskLayout, UsesItsAreaWithinTheMargins) {
  int right = 0, bottom = 0;
  for (const TemplateRow& row : controls) {
    EXPECT_GE(row.x, kMargin) << Describe(row);
    EXPECT_GE(row.y, kMargin) << Describe(row);
    right = std::max(right, Place(row).right);
    bottom = std::max(bottom, Place(row).bottom);
  }
  EXPECT_EQ(right, window.width - kMargin);
  EXPECT_EQ(bottom, window.height - kMargin);
}

TEST_F(DeskLayout, KeepsControlsApart) {
  for (size_t i = 0; i < controls.size(); ++i) {
    for (size_t j = i + 1; j < controls.size(); ++j)
      EXPECT_FALSE(AreCloser(Place(controls[i]), Place(controls[j]), kGap))
          << Describe(controls[i]) << " and " << Describe(controls[j]);
  }
}

TEST_F(DeskLayout, HasRoomForItsTexts) {
  for (const TemplateRow& row : controls) {
    EXPECT_LE(TextWidth(row.traditional), RoomForText(row)) << row.traditional;
    EXPECT_LE(TextWidth(row.simplified), RoomForText(row)) << row.simplified;
  }
}

TEST_F(DeskLayout, HasEachKeyOnceAndTheSameInBothLanguages) {
  std::set<std::string> keys;
  for (const TemplateRow& row : controls) {
    const std::string key = AccessKeys(row.traditional);
    EXPECT_EQ(key, AccessKeys(row.simplified)) << Describe(row);
    EXPECT_TRUE(row.kind != ControlKind::Button || key.size() == 1) << Describe(row);
    if (!key.empty()) {
      EXPECT_TRUE(keys.insert(key).second) << Describe(row);
    }
  }
}

TEST_F(DeskLayout, HasEachIdOnce) {
  std::set<int> ids;
  for (const TemplateRow& row : controls) {
    if (row.id != 0) {
      EXPECT_TRUE(ids.insert(row.id).second) << Describe(row);
    }
  }
}

// A process has one code page, so each run checks the texts of its own language.
TEST_F(DeskLayout, TextsExistInTheCodePage) {
  const tq::Resources resources = desk::Resources();
  for (const TemplateRow& row : controls) {
    const char* const text = resources.traditional ? row.traditional : row.simplified;
    if (text != nullptr) {
      EXPECT_EQ(Utf8(resources.toAnsi(text)), text);
    }
  }
  constexpr auto kLast = static_cast<int>(desk::Word::CloudAbroad);
  for (int word = 0; word <= kLast; ++word)
    EXPECT_EQ(Utf8(desk::Text(static_cast<desk::Word>(word))).find('?'), std::string::npos) << word;
}

} // namespace
