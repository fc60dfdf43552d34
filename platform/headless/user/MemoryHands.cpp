// The user's hands where there is no screen.
#include <utility>

#include "platform/CodePage.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/ListKeys.h"
#include "platform/framework/window/Mnemonic.h"
#include "platform/headless/HitTest.h"
#include "platform/headless/Queue.h"
#include "platform/headless/user/Actions.h"
#include "platform/headless/user/EditText.h"
#include "platform/headless/user/Focus.h"
#include "platform/headless/user/Hands.h"

namespace tq::headless {

namespace {

Dialog* Listening(WindowHandle handle) {
  Dialog* const dialog = FindDialog(handle);
  return dialog != nullptr && IsOpen(*dialog) ? dialog : nullptr;
}

// The control, if it accepts the mouse.
Control* FindOpen(WindowHandle handle) {
  Control* const control = FindControl(handle);
  return control != nullptr && TakesMouse(*control) ? control : nullptr;
}

// The control, if the mouse can reach it.
Control* Reach(WindowHandle handle) {
  Control* const control = FindOpen(handle);
  return control != nullptr && IsReached(*control) ? control : nullptr;
}

bool HasSpaceBeside(const Control& list) {
  return list.rows.Count() < list.rows.Page();
}

// The list, scrolled to the row, if the mouse can reach it.
Control* ReachRow(WindowHandle handle, int row) {
  Control* const list = FindOpen(handle);
  if (list == nullptr || !list->HasRows() || list->kind == ControlKind::ComboBox)
    return nullptr;
  if (row == kBeside)
    return HasSpaceBeside(*list) && IsRowReached(*list, list->rows.Page() - 1) ? list : nullptr;
  if (!list->rows.Holds(row))
    return nullptr;
  list->rows.Reveal(row);
  return IsRowReached(*list, row) ? list : nullptr;
}

// The edit that has the focus and takes input.
Control* FocusedEdit(const Dialog& dialog) {
  Control* const focus = dialog.focus;
  const bool is = focus != nullptr && focus->kind == ControlKind::Edit && focus->TakesInput();
  return is ? focus : nullptr;
}

void PressInEdit(Control& edit, WindowKey key, WindowHeldKeys held) {
  if (key == WindowKey::A && held.control)
    return SelectText(edit);
  PutCaret(edit, key, held.shift);
  const bool changed = (key == WindowKey::Delete && DeleteForward(edit)) ||
                       (key == WindowKey::Space && TypeCharacter(edit, " "));
  if (changed)
    TellTextChanged(edit);
}

WindowHeldKeys HeldBy(Modifier modifier) {
  return {modifier == Modifier::Shift, modifier == Modifier::Control, modifier == Modifier::Alt};
}

class HandsInMemory : public Hands {
public:
  bool Click(WindowHandle handle) override {
    Control* const control = Reach(handle);
    if (control == nullptr || control->HasRows())
      return false;
    if (control->kind == ControlKind::Edit)
      control->selectionStart = control->selectionEnd = control->text.GetLength();
    if (MoveFocus(*control) && control->kind == ControlKind::Button)
      ClickButton(*control);
    return true;
  }

  bool ClickRow(WindowHandle handle, int row, Modifier modifier) override {
    Control* const list = ReachRow(handle, row);
    if (list != nullptr)
      PressOnRow(*list, row, modifier);
    return list != nullptr;
  }

  bool DoubleClickRow(WindowHandle handle, int row, Modifier modifier) override {
    if (!ClickRow(handle, row, modifier))
      return false;
    // The first click may have changed the rows, ended the dialog, or had no effect.
    if (Control* const list = ReachRow(handle, row))
      PressAgainOnRow(*list, row);
    return true;
  }

  bool HoverRow(WindowHandle handle, int row) override {
    const Control* const found = row == kBeside ? nullptr : ReachRow(handle, row);
    if (found == nullptr || (found->listStyles & CListCtrl::HoverSelect) == 0)
      return false;
    Rest(found->hoverTime == 0 ? kSystemHoverTime : found->hoverTime);
    if (Control* const list = ReachRow(handle, row))
      RestOnRow(*list, row);
    return true;
  }

  bool IsRowInSight(WindowHandle handle, int row) override {
    const Control* const list = FindControl(handle);
    return list != nullptr && list->kind != ControlKind::ComboBox && list->rows.InSight(row);
  }

  bool PickEntry(WindowHandle handle, int index) override {
    Control* const control = Reach(handle);
    if (control == nullptr || control->kind != ControlKind::ComboBox || !control->rows.Holds(index))
      return false;
    if (MoveFocus(*control))
      PickOf(*control, index);
    return true;
  }

  bool TypeText(WindowHandle handle, const char* text) override {
    const Dialog* const dialog = Listening(handle);
    Control* const edit = dialog == nullptr ? nullptr : FocusedEdit(*dialog);
    if (edit == nullptr)
      return false;
    const CString all(text);
    const char* const end = all.GetString() + all.GetLength();
    for (const char* at = all.GetString(); at != end; at = NextChar(at, end)) {
      if (Listening(handle) == nullptr || FocusedEdit(*dialog) != edit)
        break;
      if (TypeCharacter(*edit, CString(at, static_cast<int>(CharLength(at, end)))))
        TellTextChanged(*edit);
    }
    return true;
  }

  bool PressKey(WindowHandle handle, WindowKey key, Modifier modifier) override {
    Dialog* const dialog = Listening(handle);
    if (dialog == nullptr)
      return false;
    const WindowHeldKeys held = HeldBy(modifier);
    if (TakeKey(*dialog, key, held))
      return true;
    Control* const edit = FocusedEdit(*dialog);
    const bool isMeant = !held.alt && (held.control || !IsLetterKey(key));
    if (edit != nullptr && isMeant)
      PressInEdit(*edit, key, held);
    return true;
  }

  bool PressLetter(WindowHandle handle, char letter, Modifier modifier) override {
    Dialog* const dialog = Listening(handle);
    if (dialog == nullptr || AsMnemonic(letter) == '\0')
      return false;
    if (modifier == Modifier::Control)
      return PressWithControl(handle, AsMnemonic(letter));
    const bool alt = modifier == Modifier::Alt;
    if (!alt && dialog->focus != nullptr && dialog->focus->HasRows())
      return false;
    const char text[] = {letter, '\0'};
    if (!alt && FocusedEdit(*dialog) != nullptr)
      return TypeText(handle, text);
    TakeLetter(*dialog, letter, alt);
    return true;
  }

  bool CloseByTitleBar(WindowHandle handle) override {
    Dialog* const dialog = Listening(handle);
    if (dialog != nullptr)
      CloseByUser(*dialog);
    return dialog != nullptr;
  }

private:
  bool PressWithControl(WindowHandle handle, char letter) {
    for (const auto& [known, key] :
         {std::pair{'A', WindowKey::A}, {'Y', WindowKey::Y}, {'Z', WindowKey::Z}}) {
      if (letter == known)
        return PressKey(handle, key, Modifier::Control);
    }
    return false;
  }
};

} // namespace

Hands& MemoryHands() {
  static HandsInMemory hands;
  return hands;
}

} // namespace tq::headless
