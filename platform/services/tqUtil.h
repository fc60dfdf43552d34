// tqUtil: small helpers that the terminal's libraries share. On the terminal's user-interface
// thread. Nothing throws.
#pragma once

#include "platform/Compiler.h"

class CWnd;

class TQ_SERVICE_API CCheckFileName {
public:
  // Whether a text that the user typed can serve as a file name: not empty, and without control
  // characters and the nine characters \ / : * ? " < > | (a double-byte character whose second byte
  // looks like one of them is fine). `name` is in the process's ANSI code page; null cannot serve.
  // Returns non-zero when it can. When it cannot and `showMessage` is non-zero, a message box over
  // `parent` (null: the terminal's main window) says so before the call returns 0.
  static int IsValidName(CWnd* parent, const char* name, int showMessage);
};
