// List views: rows in columns below a header.
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>

#include <algorithm>

#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/qt/controls/ControlWidget.h"
#include "platform/qt/controls/RowsView.h"

namespace tq::qt {

namespace {

class TableView : public RowsView {
public:
  TableView(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : RowsView(control, units, parent), header_(Qt::Horizontal, this) {
    header_.setModel(&titles_);
    header_.setSectionsClickable(false);
    header_.setHighlightSections(false);
    header_.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header_.setMinimumSectionSize(0);
    header_.setFocusPolicy(Qt::NoFocus);
    setViewportMargins(0, HeaderHeight(), 0, 0);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(&header_, &QHeaderView::sectionResized, this, [this] {
      RefreshAcross();
      viewport()->update();
    });
  }

  int RowAt(const QPoint& point) const override {
    const int row = RowsView::RowAt(point);
    const bool wholeRow = (control_.listStyles & CListCtrl::FullRowSelect) != 0;
    const bool onRow = wholeRow ? point.x() < header_.length() - header_.offset()
                                : header_.logicalIndexAt(point.x()) == 0;
    return onRow ? row : -1;
  }

  // The first column of a row, on which the mouse means it in every style.
  QRect PlaceOfFirst(int row) const {
    return CellPlace(PlaceOfRow(row), 0).intersected(viewport()->rect());
  }

protected:
  int HeaderHeight() const override { return units_.Down(12); }

  bool IsWiderThan(int width) const override { return header_.length() > width; }

  void RefreshLayout() override {
    while (shownColumns_ < static_cast<int>(control_.columns.size()))
      AddColumn(control_.columns[static_cast<size_t>(shownColumns_)]);
    RefreshAcross();
  }

  void PaintRow(QPainter& painter, int row, const QRect& place) override {
    const bool selected = TheRows().IsSelected(row);
    const bool wholeRow = (control_.listStyles & CListCtrl::FullRowSelect) != 0;
    const int across = std::max(0, header_.length());
    QRect back = wholeRow ? QRect(-header_.offset(), place.top(), across, place.height())
                          : CellPlace(place, 0);
    PaintBack(painter, row, back);
    for (int column = 0; column < shownColumns_; ++column) {
      const QRect cell = CellPlace(place, column);
      if (cell.right() >= 0 && cell.left() <= viewport()->width())
        PaintText(painter, cell, CellText(row, column), selected && (wholeRow || column == 0));
    }
    if ((control_.listStyles & CListCtrl::GridLines) != 0)
      PaintGrid(painter, place);
  }

  void resizeEvent(QResizeEvent* event) override {
    RowsView::resizeEvent(event);
    header_.setGeometry(frameWidth(), frameWidth(), viewport()->width(), HeaderHeight());
    RefreshAcross();
  }

  void scrollContentsBy(int across, int down) override {
    header_.setOffset(horizontalScrollBar()->value());
    RowsView::scrollContentsBy(across, down);
  }

private:
  // Width 0 is what the columns before leave.
  void AddColumn(const headless::Column& column) {
    const int width = column.width == 0 ? std::max(0, InnerWidth() - header_.length())
                                        : units_.Across(column.width);
    titles_.setColumnCount(++shownColumns_);
    titles_.setHorizontalHeaderItem(shownColumns_ - 1, new QStandardItem(ToQtText(column.title)));
    header_.resizeSection(shownColumns_ - 1, width);
  }

  void RefreshAcross() {
    QScrollBar& bar = *horizontalScrollBar();
    const int more = std::max(0, header_.length() - viewport()->width());
    if (bar.maximum() == more)
      return;
    bar.setRange(0, more);
    bar.setPageStep(viewport()->width());
  }

  QRect CellPlace(const QRect& row, int column) const {
    return {header_.sectionViewportPosition(column), row.top(), header_.sectionSize(column),
            row.height()};
  }

  QString CellText(int row, int column) const {
    if (!TheRows().Holds(row)) // what was asked before may have taken it away
      return {};
    if (control_.IsVirtual())
      return ToQtText(DialogAccess::CellText(*control_.owner->object, control_.id, row, column));
    const headless::Row* const at = TheRows().At(row);
    const auto more = static_cast<size_t>(column - 1);
    if (at == nullptr || (column != 0 && more >= at->more.size()))
      return {};
    return ToQtText(column == 0 ? at->text : at->more[more]);
  }

  void PaintGrid(QPainter& painter, const QRect& row) const {
    painter.setPen(palette().color(QPalette::Midlight));
    painter.drawLine(row.left(), row.bottom(), row.right(), row.bottom());
    for (int column = 0; column < shownColumns_; ++column) {
      const int right = CellPlace(row, column).right();
      painter.drawLine(right, row.top(), right, row.bottom());
    }
  }

  QStandardItemModel titles_;
  QHeaderView header_;
  int shownColumns_ = 0;
};

class ListView : public ControlWidget {
public:
  ListView(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : ControlWidget(control, units), view_(control, units, parent) {}
  QWidget& Widget() override { return view_; }
  void Refresh() override { view_.Refresh(); }
  QRect PlaceOfRow(int row) override {
    return view_.PlaceOfFirst(row).translated(view_.viewport()->pos());
  }

private:
  TableView view_;
};

} // namespace

std::unique_ptr<ControlWidget> MakeListView(headless::Control& control, const DialogUnits& units,
                                            QWidget& parent) {
  return std::make_unique<ListView>(control, units, parent);
}

} // namespace tq::qt
