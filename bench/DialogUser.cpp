#include "bench/DialogUser.h"

#include <utility>

#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"

namespace bench {
namespace {

std::function<void(CDialog&)> user;

void ActAsUser(CDialog& dialog) {
  user(dialog);
  tq::DialogAccess::Command(dialog, CDialog::Cancelled, WindowEvent::Clicked);
}

} // namespace

void WithUser(std::function<void(CDialog&)> act, const std::function<void()>& open) {
  user = std::move(act);
  tq::SetModalHandler(ActAsUser);
  open();
  tq::SetModalHandler(nullptr);
}

void DrawSight(CDialog& dialog, int table) {
  constexpr int kInSight = 20;
  const CListCtrl rows(dialog, table);
  for (int row = 0; row < kInSight; ++row) {
    for (const int column : {0, 1})
      rows.GetCellText(row, column);
  }
}

} // namespace bench
