// List boxes.
#include <QPainter>

#include "platform/framework/window/DialogAccess.h"
#include "platform/qt/controls/ControlWidget.h"
#include "platform/qt/controls/RowsView.h"

namespace tq::qt {

namespace {

constexpr int kMargin = 4; // pixels beside a text, both sides together

class BoxView : public RowsView {
public:
  using RowsView::RowsView;

  bool FitsInRow(const CString& text) const override {
    const int room = width() - 2 * frameWidth() - kMargin;
    return fontMetrics().horizontalAdvance(ToQtText(text)) <= room;
  }

protected:
  void PaintRow(QPainter& painter, int row, const QRect& place) override {
    WindowItemLook look;
    if ((control_.style & TemplateOwnerDrawn) != 0)
      look = DialogAccess::Look(*control_.owner->object, control_.id, row);
    const headless::Row* const at = TheRows().At(row); // asking for the look may change rows
    if (at == nullptr)
      return;
    QString text = ToQtText(at->text);
    if (look.marked)
      text.prepend(QStringLiteral("\u25CF "));
    QFont font = painter.font();
    font.setBold(look.bold);
    painter.setFont(font);
    PaintBack(painter, row, place);
    PaintText(painter, place, text, at->selected);
  }
};

class ListBox : public ControlWidget {
public:
  ListBox(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : ControlWidget(control, units), view_(control, units, parent) {}
  QWidget& Widget() override { return view_; }
  void Refresh() override { view_.Refresh(); }
  QRect PlaceOfRow(int row) override {
    return view_.PlaceOfRow(row).translated(view_.viewport()->pos());
  }
  bool FitsInRow(const CString& text) override { return view_.FitsInRow(text); }

private:
  BoxView view_;
};

} // namespace

std::unique_ptr<ControlWidget> MakeListBox(headless::Control& control, const DialogUnits& units,
                                           QWidget& parent) {
  return std::make_unique<ListBox>(control, units, parent);
}

} // namespace tq::qt
