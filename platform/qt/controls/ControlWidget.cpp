#include "platform/qt/controls/ControlWidget.h"

#include "platform/qt/Text.h"

namespace tq::qt {

void ControlWidget::RefreshTip() {
  const auto& tips = control_.owner->tips;
  const auto found = tips.find(control_.id);
  const CString tip = found == tips.end() ? CString() : found->second;
  if (tip == tip_)
    return;
  tip_ = tip;
  Widget().setToolTip(ToQt(Code(), tip));
}

} // namespace tq::qt
