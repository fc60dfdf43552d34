// Windows in memory: what a dialog and its controls are where there is no window system. Internal.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/DialogTemplate.h"
#include "platform/headless/Rows.h"

namespace tq::headless {

struct Dialog;

struct Node {
  virtual ~Node() = default;
  WindowHandle handle = nullptr;
  ControlKind kind = ControlKind::Dialog;
  CString text;
  bool enabled = true;
  bool visible = true;
  bool drawn = true; // SetRedraw
};

struct Column {
  CString title;
  int width;
};

// In dialog units, as the template has it.
struct Place {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

struct Control : Node {
  Dialog* owner = nullptr;
  int id = 0;
  unsigned style = 0;
  Place place;
  Rows rows;                   // list box, combo box, list view
  bool rowTips = false;        // list box
  std::vector<Column> columns; // list view
  unsigned listStyles = 0;
  unsigned hoverTime = 0;
  int limit = 0;                 // edit: bytes, 0 none
  int selectionStart = 0;        // edit: bytes, whole characters
  int selectionEnd = 0;          // the caret
  const Control* over = nullptr; // edit: the list box over whose row it was placed last
  int overRow = -1;
  unsigned placings = 0; // how often
  WindowButtonIcon icon = WindowButtonIcon::None;

  bool TakesInput() const { return enabled && visible; }
  bool TakesFocus() const { return kind != ControlKind::Label && TakesInput(); }
  bool HasRows() const {
    return kind == ControlKind::ListBox || kind == ControlKind::ComboBox ||
           kind == ControlKind::ListView;
  }
  bool IsVirtual() const { return (style & TemplateVirtual) != 0; }
  bool IsMulti() const { return kind == ControlKind::ListView || (style & TemplateMulti) != 0; }
};

// What the texts of a dialog are in.
enum class TextCode { Big5, Gbk, Utf8 };

struct Timer {
  unsigned period;
  uint64_t due;
  uint64_t order; // of setting: timers that are due together come in it
};

struct Dialog : Node {
  CDialog* object = nullptr;
  std::vector<std::unique_ptr<Control>> controls; // in the template's order
  Control* focus = nullptr;
  Place place;
  TextCode code = TextCode::Big5;
  std::map<unsigned, Timer> timers;
  std::map<int, CString> tips;

  TQFRAMEWORK_API Control* Find(int id) const;
};

// Makes the windows of a template of the resources in force; null when there is none. The dialog is
// hidden.
std::unique_ptr<Dialog> MakeDialog(unsigned templateId);

// All existing windows by handle. Handles are never reused.
void Register(Node& node);
void Forget(const Node& node);
size_t NodeCount();
TQFRAMEWORK_API Node* FindNode(WindowHandle handle);
TQFRAMEWORK_API Dialog* FindDialog(WindowHandle handle);
// Null when the handle is not that of a control of this kind.
TQFRAMEWORK_API Control* FindControl(WindowHandle handle);
Control* FindControl(WindowHandle handle, ControlKind kind);

} // namespace tq::headless
