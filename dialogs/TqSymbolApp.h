// CTqSymbolApp: the library as a whole, from the moment it is loaded until it is unloaded.
#pragma once

#include "platform/framework/CWinApp.h"

class CTqSymbolApp : public CWinApp {
public:
  // Destroys the library's logger, which closes its file, and is done when the library is unloaded
  // and when the process ends; on Windows in the latter case the logger is left to the system
  // (platform/Module.h). Nothing else is left to do: managers belong to the terminal. Harmless
  // without a logger, and a second time.
  int ExitInstance() override;
};
