// CTqSymbolApp: the library as a whole, from the moment it is loaded until it is unloaded.
#pragma once

#include "platform/framework/CWinApp.h"

class CTqSymbolApp : public CWinApp {
public:
  // Destroys the library's logger, which closes its file. Nothing else is left to do: managers
  // belong to the terminal. Harmless without a logger, and a second time.
  int ExitInstance() override;
};
