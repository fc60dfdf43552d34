// CTqSymbolApp: the library from loading to unloading.
#pragma once

#include "platform/framework/CWinApp.h"

class CTqSymbolApp : public CWinApp {
public:
  // Destroys the library's logger, which closes its file. Called when the library is unloaded and
  // when the process ends; on Windows the logger is left to the system in the latter case
  // (platform/Module.h). There is nothing else to do: managers belong to the terminal. May be
  // called without a logger and repeatedly.
  int ExitInstance() override;
};
