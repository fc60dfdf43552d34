// The widget of one control. Internal.
#pragma once

#include <QWidget>

#include <memory>

#include "platform/headless/Windows.h"
#include "platform/qt/DialogUnits.h"

namespace tq::qt {

class ControlWidget {
public:
  ControlWidget(headless::Control& control, const DialogUnits& units)
      : control_(control), units_(units) {}
  virtual ~ControlWidget() = default;
  ControlWidget(const ControlWidget&) = delete;
  ControlWidget& operator=(const ControlWidget&) = delete;

  headless::Control& Model() const { return control_; }
  virtual QWidget& Widget() = 0;
  // Shows what memory holds now, of all that is not the same for every control. It notifies nobody.
  virtual void Refresh() = 0;

  // Whether the control was laid over another row since it was asked last.
  bool IsPlacedAnew() {
    const bool anew = placings_ != control_.placings;
    placings_ = control_.placings;
    return anew;
  }

  // The tip of the dialog's own, when it is another one than was shown last.
  void RefreshTip();

  // Of lists: where a row that is in sight lies in the widget, and whether a text fits into it.
  virtual QRect PlaceOfRow(int) { return {}; }
  virtual bool FitsInRow(const CString&) { return true; }

protected:
  headless::TextCode Code() const { return control_.owner->code; }

  headless::Control& control_;
  const DialogUnits& units_;

private:
  unsigned placings_ = 0;
  CString tip_;
};

std::unique_ptr<ControlWidget> MakeLabel(headless::Control& control, const DialogUnits& units,
                                         QWidget& parent);
std::unique_ptr<ControlWidget> MakeButton(headless::Control& control, const DialogUnits& units,
                                          QWidget& parent);
std::unique_ptr<ControlWidget> MakeEdit(headless::Control& control, const DialogUnits& units,
                                        QWidget& parent);
std::unique_ptr<ControlWidget> MakeComboBox(headless::Control& control, const DialogUnits& units,
                                            QWidget& parent);
std::unique_ptr<ControlWidget> MakeListBox(headless::Control& control, const DialogUnits& units,
                                           QWidget& parent);
std::unique_ptr<ControlWidget> MakeListView(headless::Control& control, const DialogUnits& units,
                                            QWidget& parent);

} // namespace tq::qt
