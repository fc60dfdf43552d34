// Windows on the screen against bare Qt widgets with the same content: opening a list of 10,000
// rows, a virtual one of a million, and each dialog of the library. docs/benchmarks.md explains
// every row.
#include <QApplication>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/Report.h"
#include "bench/screen/BareDialog.h"
#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/WindowKind.h"

namespace {

constexpr double kGoal = 1.2;
constexpr std::size_t kRepetitions = 41;
constexpr int kLong = 10'000;
constexpr int kMillion = 1'000'000;

void Fill(CListCtrl table, bool isVirtual, const bench::Content& content) {
  table.AddColumn("code", 60);
  table.AddColumn("name", 60);
  if (isVirtual) {
    table.SetVirtualRows(content.virtualRows);
    return;
  }
  for (const std::string& row : content.rows)
    table.SetCellText(table.AddRow(row.c_str()), 1, "name");
}

class MeasuredDialog : public CDialog {
public:
  MeasuredDialog(const bench::Template& from, const bench::Content& content)
      : CDialog(static_cast<unsigned>(from.dialog->id)), from_(from), content_(content) {}
  bool WasShown() const { return shown_; }

protected:
  bool OnInitDialog() override {
    for (const tq::TemplateRow* const row : from_.controls) {
      const CWnd control(*this, row->id);
      if (row->kind == tq::ControlKind::ListBox)
        FillBox(CListBox(control.GetSafeHwnd()));
      else if (row->kind == tq::ControlKind::ListView)
        Fill(CListCtrl(control.GetSafeHwnd()), (row->style & tq::TemplateVirtual) != 0, content_);
      else if (row->kind == tq::ControlKind::ComboBox)
        FillCombo(CComboBox(control.GetSafeHwnd()));
    }
    Post(kFirstMessage);
    return true;
  }

  intptr_t OnMessage(unsigned, intptr_t, intptr_t) override {
    while (tq::ServeMessage(tq::Serve::Messages)) {
    }
    shown_ = tq::WindowsOnScreen();
    EndDialog(Accepted);
    return 0;
  }

  CString OnCellText(int, int row, int column) override {
    return CString(bench::VirtualCell(row, column).c_str());
  }

private:
  void FillBox(CListBox box) const {
    for (const std::string& row : content_.rows)
      box.AddString(row.c_str());
  }
  static void FillCombo(CComboBox combo) {
    combo.AddString("one");
    combo.AddString("two");
  }

  const bench::Template& from_;
  const bench::Content& content_;
  bool shown_ = false;
};

void Measure(bench::Report& report, const std::string& what, const bench::Template& from,
             const bench::Content& content) {
  bool shown = true;
  const auto library = [&] {
    return bench::Computing([&] {
      MeasuredDialog dialog(from, content);
      dialog.DoModal();
      shown = shown && dialog.WasShown();
    });
  };
  const auto peer = [&] { return bench::Computing([&] { bench::OpenBare(from, content); }); };
  report.Ratio(what, bench::Compare(kRepetitions, library, peer), kGoal);
  if (!shown)
    report.Wrong(what);
}

bench::Content RowsOf(int rows, int virtualRows) {
  bench::Content content;
  content.virtualRows = virtualRows;
  for (int row = 0; row < rows; ++row)
    content.rows.push_back("row " + std::to_string(row));
  return content;
}

bool Has(const bench::Template& from, bool isVirtual) {
  for (const tq::TemplateRow* const row : from.controls) {
    if (isVirtual ? (row->style & tq::TemplateVirtual) != 0 : row->kind == tq::ControlKind::ListBox)
      return true;
  }
  return false;
}

// One dialog that has such a list.
const bench::Template& FindWith(const std::vector<bench::Template>& templates, bool isVirtual) {
  for (const bench::Template& each : templates) {
    if (Has(each, isVirtual))
      return each;
  }
  return templates.front();
}

// Memory that is the process's own, in bytes.
double Resident() {
  long all = 0;
  long resident = 0;
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (file == nullptr || std::fscanf(file, "%ld %ld", &all, &resident) != 2)
    resident = 0;
  if (file != nullptr)
    std::fclose(file);
  return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

// What ten thousand dialogs leave behind.
void MeasureGrowth(bench::Report& report, const bench::Template& from) {
  constexpr int kWarm = 1000;
  constexpr int kRuns = 10'000;
  constexpr double kMegabyte = 1 << 20;
  const bench::Content content = RowsOf(30, 30);
  double before = 0;
  for (int run = 0; run < kWarm + kRuns; ++run) {
    if (run == kWarm)
      before = Resident();
    MeasuredDialog dialog(from, content);
    dialog.DoModal();
  }
  report.Number("memory after 10,000 more dialogs", (Resident() - before) / kMegabyte, "MB", 1);
}

} // namespace

int main(int argc, char** argv) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  ::setenv("TQSYMBOL_WINDOWS", "screen", 1);
  const QApplication application(argc, argv);
  const std::vector<bench::Template> templates = bench::AllTemplates();
  const tq::ResourceContext context(bench::TemplateResources());
  bench::Report report;
  report.Section("windows on the screen, over bare Qt widgets with the same content");
  Measure(report, "a list box of 10,000 rows", FindWith(templates, false), RowsOf(kLong, 0));
  Measure(report, "a virtual table of a million rows", FindWith(templates, true),
          RowsOf(0, kMillion));
  const bench::Content few = RowsOf(30, 30);
  for (const bench::Template& each : templates)
    Measure(report, "dialog " + std::to_string(each.dialog->id) + " with 30 rows", each, few);
  MeasureGrowth(report, templates.front());
  return report.Finish();
}
