// The DLL's dialog resources, read byte by byte, compared with the templates they are made from.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "platform/framework/window/DialogTemplate.h"
#include "tests/interface/win32/ResourceReader.h"

namespace {

using tq::ControlKind;
using tq::TemplateRow;

constexpr TemplateRow kRows[] = {
#include "platform/framework/window/DialogRows.inc"
// clang-format off: the macros above come first
#include "dialogs/resources/Dialogs.inc"
#include "platform/framework/window/DialogRowsEnd.inc"
    // clang-format on
};

constexpr WORD kExtended = 0xFFFF; // marks DIALOGEX, where DIALOG has half of its style
constexpr WORD kFontSize = 9;

std::wstring ClassOf(ControlKind kind) {
  switch (kind) {
  case ControlKind::Button:
    return L"BUTTON";
  case ControlKind::Edit:
    return L"EDIT";
  case ControlKind::Label:
    return L"STATIC";
  case ControlKind::ListBox:
    return L"LISTBOX";
  case ControlKind::ComboBox:
    return L"COMBOBOX";
  case ControlKind::ListView:
    return L"SysListView32";
  default:
    return L"";
  }
}

DWORD KindStyle(ControlKind kind) {
  switch (kind) {
  case ControlKind::Button:
    return BS_PUSHBUTTON | WS_TABSTOP;
  case ControlKind::Edit:
    return ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP;
  case ControlKind::Label:
    return SS_LEFT | WS_GROUP;
  case ControlKind::ListBox:
    return LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL |
           WS_TABSTOP | WS_CLIPSIBLINGS;
  case ControlKind::ComboBox:
    return CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP;
  case ControlKind::ListView:
    return LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP;
  default:
    return 0;
  }
}

DWORD StyleOf(const TemplateRow& row) {
  constexpr struct {
    unsigned flag;
    DWORD style;
  } kFlags[] = {
      {tq::TemplateDefault, BS_DEFPUSHBUTTON}, {tq::TemplateIcon, BS_ICON},
      {tq::TemplateDisabled, WS_DISABLED},     {tq::TemplateMulti, LBS_EXTENDEDSEL},
      {tq::TemplateReadOnly, ES_READONLY},     {tq::TemplateOwnerDrawn, LBS_OWNERDRAWFIXED},
      {tq::TemplateVirtual, LVS_OWNERDATA},
  };
  DWORD style = WS_CHILD | WS_VISIBLE | KindStyle(row.kind);
  for (const auto& [flag, bits] : kFlags)
    style |= (row.style & flag) != 0 ? bits : 0;
  return (row.style & tq::TemplateHidden) != 0 ? style & ~static_cast<DWORD>(WS_VISIBLE) : style;
}

class DialogResource : public testing::TestWithParam<WORD> {
protected:
  static std::wstring Text(const TemplateRow& row) {
    const char* utf8 = GetParam() == kTraditional ? row.traditional : row.simplified;
    return utf8 == nullptr ? std::wstring() : Wide(utf8);
  }

  static void ExpectPlace(ResourceReader& reader, const TemplateRow& row) {
    EXPECT_EQ(reader.Take<short>(), row.x);
    EXPECT_EQ(reader.Take<short>(), row.y);
    EXPECT_EQ(reader.Take<short>(), row.width);
    EXPECT_EQ(reader.Take<short>(), row.height);
  }

  static void ExpectDialog(ResourceReader& reader, const TemplateRow& row, int controls) {
    EXPECT_EQ(reader.Take<WORD>(), 1); // the version of extended templates
    EXPECT_EQ(reader.Take<WORD>(), kExtended);
    reader.Take<DWORD>(); // id of the help
    EXPECT_EQ(reader.Take<DWORD>(), 0u);
    EXPECT_EQ(reader.Take<DWORD>(),
              DWORD{DS_SETFONT | DS_CENTER | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU});
    EXPECT_EQ(reader.Take<WORD>(), controls);
    ExpectPlace(reader, row);
    EXPECT_EQ(reader.TakeText(), L""); // menu
    EXPECT_EQ(reader.TakeText(), L""); // class
    EXPECT_EQ(reader.TakeText(), Text(row));
    EXPECT_EQ(reader.Take<WORD>(), kFontSize);
    reader.Take<WORD>(); // weight
    reader.Take<BYTE>(); // italic
    reader.Take<BYTE>(); // character set
    EXPECT_EQ(reader.TakeText(), L"MS Shell Dlg");
  }

  static void ExpectControl(ResourceReader& reader, const TemplateRow& row) {
    reader.Align();
    reader.Take<DWORD>(); // id of the help
    EXPECT_EQ(reader.Take<DWORD>(), 0u);
    EXPECT_EQ(reader.Take<DWORD>(), StyleOf(row));
    ExpectPlace(reader, row);
    EXPECT_EQ(reader.Take<DWORD>(), static_cast<DWORD>(row.id));
    EXPECT_EQ(_wcsicmp(reader.TakeText().c_str(), ClassOf(row.kind).c_str()),
              0); // letter case is ignored
    EXPECT_EQ(reader.TakeText(), Text(row));
    EXPECT_EQ(reader.Take<WORD>(), 0); // no creation data
  }
};

const TemplateRow* EndOf(const TemplateRow* dialog) {
  const TemplateRow* end = dialog + 1;
  while (end != std::end(kRows) && end->kind != ControlKind::Dialog)
    ++end;
  return end;
}

TEST_P(DialogResource, IsWhatTheTemplateSays) {
  int dialogs = 0;
  for (const TemplateRow* row = kRows; row != std::end(kRows);) {
    SCOPED_TRACE("template " + std::to_string(row->id));
    const TemplateRow* const end = EndOf(row);
    const Resource resource = FindResourceOf(RT_DIALOG, static_cast<WORD>(row->id), GetParam());
    ASSERT_NE(resource.bytes, nullptr);
    ResourceReader reader(resource);
    ExpectDialog(reader, *row, static_cast<int>(end - row - 1));
    for (++row; row != end; ++row) {
      SCOPED_TRACE("control " + std::to_string(row->id));
      ExpectControl(reader, *row);
    }
    EXPECT_TRUE(reader.IsAtEnd());
    ++dialogs;
  }
  EXPECT_EQ(dialogs, 11);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogResource, testing::Values(kTraditional, kSimplified),
                         testing::PrintToStringParamName());

BOOL CALLBACK CountLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD, LONG_PTR count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

BOOL CALLBACK CountName(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR count) {
  EnumResourceLanguagesW(module, type, name, CountLanguage, count);
  return TRUE;
}

// Otherwise a template that is missing in the table would not be tested.
TEST(DialogResources, AreThoseOfTheTableInTwoLanguages) {
  int resources = 0, dialogs = 0;
  EnumResourceNamesW(Library(), MAKEINTRESOURCEW(5), CountName,
                     reinterpret_cast<LONG_PTR>(&resources));
  for (const TemplateRow& row : kRows)
    dialogs += row.kind == ControlKind::Dialog ? 1 : 0;
  EXPECT_EQ(resources, 2 * dialogs);
}

} // namespace
