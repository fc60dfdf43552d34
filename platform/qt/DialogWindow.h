// The window of a dialog, with its controls' widgets. Internal.
#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

#include "platform/headless/Windows.h"
#include "platform/qt/DialogUnits.h"
#include "platform/qt/controls/ControlWidget.h"

class QKeyEvent;

namespace tq::qt {

class DialogWindow : public QWidget {
public:
  // Without a parent window where that is null.
  DialogWindow(headless::Dialog& dialog, QWidget* parent);
  ~DialogWindow() override;

  const headless::Dialog& Model() const { return dialog_; }
  // Pump::Level when it opened.
  int Level() const { return level_; }
  // Shows what memory holds now.
  void Refresh();
  // Null when it is no control of this dialog.
  ControlWidget* Find(const headless::Control* control) const;

protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; } // Tab is this layer's

private:
  void MakeControls();
  void Adopt(QWidget* parent);
  void RefreshTitle();
  void RefreshVisible();
  void RefreshFocus();
  void RefreshControl(ControlWidget& control);
  void RefreshPlace(ControlWidget& control);
  ControlWidget* WidgetOf(const QObject* object) const;
  bool IsPressRefused(const QObject& object);
  bool IsWheelRefused(const QObject& object) const;
  bool IsKeyDone(const QObject& object, const QKeyEvent& event);

  headless::Dialog& dialog_;
  DialogUnits units_;
  QPointer<QWidget> host_;
  std::vector<std::unique_ptr<ControlWidget>> controls_; // as memory has them
  int level_;
  CString title_;
  bool isTitled_ = false;
};

} // namespace tq::qt
