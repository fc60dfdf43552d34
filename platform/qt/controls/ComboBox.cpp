// Combo boxes: the widget opens the list, memory holds entries and choice.
#include <QAbstractItemView>
#include <QComboBox>

#include "platform/headless/user/Actions.h"
#include "platform/headless/user/Focus.h"
#include "platform/qt/Text.h"
#include "platform/qt/controls/ControlWidget.h"

namespace tq::qt {

namespace {

// In dialog units: that of the edits and buttons beside it. The template says that of the open
// list.
constexpr int kClosedHeight = 14;

class ComboBox : public ControlWidget {
public:
  ComboBox(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : ControlWidget(control, units), widget_(&parent) {
    control_.place.height = kClosedHeight;
    widget_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QObject::connect(&widget_, &QComboBox::activated, &widget_, [this](int index) { Take(index); });
  }

  QWidget& Widget() override { return widget_; }

  void Refresh() override {
    if (!isShown_ || changes_ != control_.rows.Changes())
      ShowEntries();
    const int chosen = control_.rows.NextSelected(-1);
    if (widget_.currentIndex() != chosen)
      widget_.setCurrentIndex(chosen);
  }

private:
  void ShowEntries() {
    isShown_ = true;
    changes_ = control_.rows.Changes();
    QStringList entries;
    entries.reserve(control_.rows.Count());
    for (int row = 0; row < control_.rows.Count(); ++row)
      entries << ToQt(Code(), control_.rows.At(row)->text);
    if (entries == entries_)
      return;
    entries_ = entries;
    widget_.clear();
    widget_.addItems(entries);
  }

  void Take(int index) {
    const bool reached = headless::TakesMouse(control_) && control_.rows.Holds(index);
    if (reached && headless::MoveFocus(control_))
      headless::PickOf(control_, index);
  }

  QComboBox widget_;
  QStringList entries_;
  unsigned changes_ = 0;
  bool isShown_ = false;
};

} // namespace

std::unique_ptr<ControlWidget> MakeComboBox(headless::Control& control, const DialogUnits& units,
                                            QWidget& parent) {
  return std::make_unique<ComboBox>(control, units, parent);
}

} // namespace tq::qt
