// What the terminal's libraries share: the language, message boxes, modal runs.
#include <tqCommon.h>

#include <CDialog.h>

#include <cstdio>

int IsTraditionChinese() {
  return 1;
}

// This terminal has no windows: it writes what a box would say, and nobody presses a button.
int tqShowDllMessage(void*, unsigned id, unsigned) {
  std::printf("message %u\n", id);
  return 0;
}

int tqShowMessageStr(const char* text, unsigned) {
  if (text != nullptr)
    std::printf("message: %s\n", text);
  return 0;
}

int tqDoModal(CDialog* dialog, int, int, int) {
  return dialog != nullptr ? dialog->DoModal() : CDialog::Failed;
}
