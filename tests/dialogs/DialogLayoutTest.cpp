// The layout of each dialog template: nothing overlaps or is cut off in either language, and the
// Tab key follows the reading order. All measures are dialog units.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/dialogs/Measure.h"

namespace {

using tq::ControlKind;
using tq::TemplateRow;

constexpr int kMargin = 7;       // to the border of the dialog
constexpr int kGap = 4;          // the least distance between two controls
constexpr int kLeastButton = 50; // width of a button with a text
constexpr int kLeastIcon = 20;   // width of any other control, icon buttons included
constexpr int kButtonHeight = 14;
constexpr int kEditPadding = 2; // above and below its line, border included

bool IsHidden(const TemplateRow& row) {
  return (row.style & tq::TemplateHidden) != 0;
}

class DialogLayout : public testing::TestWithParam<Template> {
protected:
  // The controls that are visible when the dialog opens.
  static Controls Shown() {
    Controls shown;
    for (const TemplateRow& row : GetParam().controls) {
      if (!IsHidden(row))
        shown.push_back(row);
    }
    return shown;
  }
};

TEST_P(DialogLayout, KeepsItsMargins) {
  const TemplateRow& dialog = GetParam().dialog;
  const Box inner = {kMargin, kMargin, dialog.width - kMargin, dialog.height - kMargin};
  for (const TemplateRow& row : GetParam().controls)
    EXPECT_TRUE(Contains(inner, Place(row))) << Describe(row);
}

TEST_P(DialogLayout, UsesAllOfItsArea) {
  int right = 0, bottom = 0;
  for (const TemplateRow& row : Shown()) {
    right = std::max(right, Place(row).right);
    bottom = std::max(bottom, Place(row).bottom);
  }
  EXPECT_EQ(GetParam().dialog.width, right + kMargin);
  EXPECT_EQ(GetParam().dialog.height, bottom + kMargin);
}

TEST_P(DialogLayout, KeepsControlsApart) {
  const Controls shown = Shown();
  for (size_t i = 0; i < shown.size(); ++i) {
    for (size_t j = i + 1; j < shown.size(); ++j)
      EXPECT_FALSE(AreCloser(Place(shown[i]), Place(shown[j]), kGap))
          << Describe(shown[i]) << " and " << Describe(shown[j]);
  }
}

// The editor of names is hidden inside the list box over whose rows it is laid.
TEST_P(DialogLayout, HidesOnlyAnEditInAListBox) {
  for (const TemplateRow& row : GetParam().controls) {
    if (!IsHidden(row))
      continue;
    EXPECT_EQ(row.kind, ControlKind::Edit);
    int lists = 0;
    for (const TemplateRow& list : Shown())
      lists += list.kind == ControlKind::ListBox && Contains(Place(list), Place(row)) ? 1 : 0;
    EXPECT_EQ(lists, 1) << Describe(row);
  }
}

// Left to right in a row of controls, and row by row downwards; columns that stand side by side one
// after the other.
TEST_P(DialogLayout, TabsAsOneReads) {
  const Controls shown = Shown();
  for (size_t i = 0; i < shown.size(); ++i) {
    const Box before = Place(shown[i]);
    for (size_t j = i + 1; j < shown.size(); ++j) {
      const Box behind = Place(shown[j]);
      EXPECT_TRUE(behind.left >= before.right || behind.top >= before.bottom)
          << Describe(shown[j]) << " comes behind " << Describe(shown[i]);
    }
  }
}

TEST_P(DialogLayout, HasRoomForItsTexts) {
  Controls rows = GetParam().controls;
  rows.push_back(GetParam().dialog);
  for (const TemplateRow& row : rows) {
    EXPECT_LE(TextWidth(row.traditional), RoomForText(row)) << row.traditional;
    EXPECT_LE(TextWidth(row.simplified), RoomForText(row)) << row.simplified;
  }
}

// The least usable height of a control.
int LeastHeight(const TemplateRow& row) {
  switch (row.kind) {
  case ControlKind::Button:
    return kButtonHeight;
  case ControlKind::Edit:
    return kLineHeight + 2 * kEditPadding;
  case ControlKind::ComboBox:
    return 5 * kClosedCombo; // room for several entries when it drops down
  case ControlKind::ListBox:
  case ControlKind::ListView:
    return 10 * kLineHeight;
  default:
    return kLineHeight;
  }
}

TEST_P(DialogLayout, HasControlsOfUsableSize) {
  for (const TemplateRow& row : GetParam().controls) {
    EXPECT_GE(row.height, LeastHeight(row)) << Describe(row);
    const bool hasText = row.kind == ControlKind::Button && (row.style & tq::TemplateIcon) == 0;
    EXPECT_GE(row.width, hasText ? kLeastButton : kLeastIcon) << Describe(row);
  }
}

// A row is as high as a line of the dialog's font, of which a unit is an eighth, and the border is
// a unit above and one below.
TEST_P(DialogLayout, ShowsWholeRowsInListBoxes) {
  constexpr int kRow = 8;
  constexpr int kBorders = 2;
  for (const TemplateRow& row : GetParam().controls)
    EXPECT_TRUE(row.kind != ControlKind::ListBox || (row.height - kBorders) % kRow == 0)
        << Describe(row);
}

TEST_P(DialogLayout, HasEachAccessKeyOnceAndTheSameInBothLanguages) {
  std::set<char> keys;
  for (const TemplateRow& row : GetParam().controls) {
    const std::string own = AccessKeys(row.traditional);
    EXPECT_EQ(own, AccessKeys(row.simplified)) << Describe(row);
    EXPECT_LE(own.size(), 1u) << Describe(row);
    for (const char key : own) {
      EXPECT_TRUE(key >= 'A' && key <= 'Z') << Describe(row);
      EXPECT_TRUE(keys.insert(key).second) << Describe(row);
    }
  }
}

TEST_P(DialogLayout, HasOneDefaultButtonAtMost) {
  int defaults = 0;
  for (const TemplateRow& row : GetParam().controls) {
    if ((row.style & tq::TemplateDefault) == 0)
      continue;
    EXPECT_EQ(row.kind, ControlKind::Button) << Describe(row);
    ++defaults;
  }
  EXPECT_LE(defaults, 1);
}

// A label's access key goes to the control behind it, so there must be one that can have the focus.
TEST_P(DialogLayout, PutsEachLabelInFrontOfAField) {
  const Controls& controls = GetParam().controls;
  for (size_t i = 0; i < controls.size(); ++i) {
    if (controls[i].kind != ControlKind::Label)
      continue;
    ASSERT_LT(i + 1, controls.size());
    const ControlKind next = controls[i + 1].kind;
    EXPECT_TRUE(next == ControlKind::Edit || next == ControlKind::ComboBox)
        << Describe(controls[i]);
  }
}

INSTANTIATE_TEST_SUITE_P(All, DialogLayout, testing::ValuesIn(Templates()),
                         [](const auto& tested) { return tested.param.Name(); });

} // namespace
