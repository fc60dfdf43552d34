// Dialog templates as a table, for a system whose modules carry no resources. A library writes its
// templates once, both languages side by side, in an .inc file of the macros below; the table of
// this header and the DIALOG resources of the .rc file are both made from it:
//
//   TQ_DIALOG(1007, 200, 150, "經濟指標查詢", "经济指标查询")   opens template 1007, 200 x 150
//   TQ_LABEL(0, 6, 8, 26, 8, TQ_PLAIN, "地區:", "地区:")         a text; id 0 where nobody asks
//   TQ_COMBO(761, 34, 6, 66, 90, TQ_PLAIN)                       the height is the open list's
//   TQ_LIST_VIEW(781, 6, 24, 188, 104, TQ_PLAIN)
//   TQ_BUTTON(1, 90, 132, 50, 14, TQ_DEFAULT, "確定(&K)", "确定(&K)")
//   TQ_LIST_BOX and TQ_EDIT as TQ_LIST_VIEW
//   TQ_DIALOG_END
//
// A place is x, y, width, height in dialog units: a quarter of a letter's average width, an eighth
// of its height. Tab goes through the controls in the order in which they stand. Where two of them
// share a place, the one that stands first lies in front and gets the mouse; labels and what is
// hidden or disabled leave it to what lies behind. Styles are joined by "|", as TemplateRow says.
// Ids 1 and 2 are OK and Cancel. The file is UTF-8.
//
// The table is made by DialogRows.inc, the resources by DialogResources.inc; see dialogs.md.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tq {

enum class ControlKind : uint8_t { Dialog, Label, Button, Edit, ListBox, ComboBox, ListView };

enum TemplateStyle : unsigned {
  TemplatePlain = 0,       // TQ_PLAIN
  TemplateDefault = 1,     // TQ_DEFAULT: the button that Enter clicks
  TemplateIcon = 2,        // TQ_ICON: a button with a picture
  TemplateHidden = 4,      // TQ_HIDDEN
  TemplateDisabled = 8,    // TQ_DISABLED
  TemplateMulti = 16,      // TQ_MULTI: a list box of several selections
  TemplateOwnerDrawn = 32, // TQ_OWNER_DRAWN: a list box that asks OnItemLook
  TemplateReadOnly = 64,   // TQ_READ_ONLY: an edit
  TemplateVirtual = 128,   // TQ_VIRTUAL: a list view that asks OnCellText
};

// A template is a row of kind Dialog and the rows of its controls behind it, up to the next one.
// Texts are UTF-8, NUL-terminated and static; null where the kind has none.
struct TemplateRow {
  ControlKind kind;
  int id;
  short x, y, width, height;
  unsigned style;
  const char* traditional;
  const char* simplified;
};

} // namespace tq
