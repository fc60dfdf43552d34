#include "platform/qt/controls/LimitedLine.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

#include <climits>
#include <memory>

#include "platform/qt/Text.h"

namespace tq::qt {

namespace {

// The first line; what stands behind it has no place here.
QString FirstLine(const QString& text) {
  qsizetype at = 0;
  while (at < text.size() && text[at] != u'\r' && text[at] != u'\n' && text[at] != u'\0')
    ++at;
  return text.left(at);
}

bool IsTyped(const QKeyEvent& event) {
  const bool held = (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
  return !held && !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace

LimitedLine::LimitedLine(const headless::Control& control, QWidget& parent)
    : QLineEdit(&parent), control_(control) {
  setAcceptDrops(false);
  setMaxLength(INT_MAX); // a long text stays whole when the user changes a letter of it
}

QString LimitedLine::Fitting(const QString& text) const {
  QString own = WithoutStandIns(text);
  if (control_.limit == 0)
    return own;
  const headless::TextCode code = control_.owner->code;
  QString others = this->text();
  if (hasSelectedText())
    others.remove(selectionStart(), selectedText().size());
  const int room = control_.limit - FromEditable(code, others).GetLength();
  return own.left(CutToBytes(code, own, room < 0 ? 0 : room));
}

void LimitedLine::InsertFitting(const QString& text) {
  const QString fitting = Fitting(text);
  if (fitting.isEmpty())
    QApplication::beep();
  else
    insert(fitting);
}

void LimitedLine::PasteFitting() {
  const QString fitting = Fitting(FirstLine(QApplication::clipboard()->text()));
  if (!isReadOnly() && !fitting.isEmpty())
    insert(fitting);
}

void LimitedLine::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste))
    PasteFitting();
  else if (IsTyped(*event) && !isReadOnly())
    InsertFitting(event->text());
  else
    QLineEdit::keyPressEvent(event);
}

void LimitedLine::inputMethodEvent(QInputMethodEvent* event) {
  const QString fitting = Fitting(event->commitString());
  if (fitting == event->commitString())
    return QLineEdit::inputMethodEvent(event);
  QInputMethodEvent cut(event->preeditString(), event->attributes());
  cut.setCommitString(fitting, event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(&cut);
  event->accept();
}

void LimitedLine::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  for (QAction* const action : menu->actions()) {
    if (action->objectName() != QLatin1String("edit-paste"))
      continue;
    action->disconnect(SIGNAL(triggered()));
    connect(action, &QAction::triggered, this, [this] { PasteFitting(); });
  }
  menu->exec(event->globalPos());
}

// What is selected stays so while another control has the focus.
void LimitedLine::focusOutEvent(QFocusEvent* event) {
  const int start = selectionStart();
  const auto length = static_cast<int>(selectedText().size());
  QLineEdit::focusOutEvent(event);
  if (start >= 0)
    setSelection(start, length);
}

} // namespace tq::qt
