#include "bench/screen/BareDialog.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>

namespace bench {
namespace {

constexpr int kColumns = 2;

class VirtualModel : public QAbstractTableModel {
public:
  explicit VirtualModel(int rows) : rows_(rows) {}
  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex&) const override { return kColumns; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole)
      return {};
    return QString::fromStdString(VirtualCell(index.row(), index.column()));
  }

private:
  int rows_;
};

QStringList TextsOf(const Content& content) {
  QStringList texts;
  for (const std::string& row : content.rows)
    texts << QString::fromStdString(row);
  return texts;
}

QWidget* MakeTable(const Content& content, QWidget* parent) {
  auto* const table = new QTreeWidget(parent);
  table->setRootIsDecorated(false);
  table->setUniformRowHeights(true);
  table->setColumnCount(kColumns);
  QList<QTreeWidgetItem*> items;
  for (const std::string& row : content.rows)
    items << new QTreeWidgetItem({QString::fromStdString(row), QStringLiteral("name")});
  table->addTopLevelItems(items);
  return table;
}

QWidget* MakeVirtualTable(const Content& content, QWidget* parent) {
  auto* const table = new QTreeView(parent);
  auto* const model = new VirtualModel(content.virtualRows);
  model->setParent(table);
  table->setRootIsDecorated(false);
  table->setUniformRowHeights(true);
  table->setModel(model);
  return table;
}

QWidget* MakeWidget(const tq::TemplateRow& row, const Content& content, QWidget* parent) {
  const QString text = QString::fromUtf8(row.traditional == nullptr ? "" : row.traditional);
  switch (row.kind) {
  case tq::ControlKind::Button:
    return new QPushButton(text, parent);
  case tq::ControlKind::Edit:
    return new QLineEdit(parent);
  case tq::ControlKind::ComboBox: {
    auto* const combo = new QComboBox(parent);
    combo->addItems({QStringLiteral("one"), QStringLiteral("two")});
    return combo;
  }
  case tq::ControlKind::ListBox: {
    auto* const list = new QListWidget(parent);
    list->setUniformItemSizes(true);
    list->addItems(TextsOf(content));
    return list;
  }
  case tq::ControlKind::ListView:
    return (row.style & tq::TemplateVirtual) != 0 ? MakeVirtualTable(content, parent)
                                                  : MakeTable(content, parent);
  default:
    return new QLabel(text, parent);
  }
}

} // namespace

void OpenBare(const Template& dialog, const Content& content) {
  QDialog window;
  const QFontMetrics metrics(window.font());
  const int across = metrics.averageCharWidth();
  const int down = metrics.height();
  const auto place = [&](const tq::TemplateRow& row) {
    return QRect(row.x * across / 4, row.y * down / 8, row.width * across / 4,
                 row.height * down / 8);
  };
  window.setFixedSize(place(*dialog.dialog).size());
  for (const tq::TemplateRow* const row : dialog.controls) {
    QWidget* const widget = MakeWidget(*row, content, &window);
    widget->setGeometry(place(*row));
    widget->setVisible((row->style & tq::TemplateHidden) == 0);
  }
  window.show();
  QApplication::processEvents();
}

} // namespace bench
