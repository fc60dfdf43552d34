// What the library does when it is unloaded. tests/unload checks it with the real library.
#include "dialogs/TqSymbolApp.h"

#include "platform/Log.h"
#include "tests/interface/ManagerTest.h"

namespace {

class TqSymbolApp : public ManagerTest {};

TEST_F(TqSymbolApp, ExitDestroysTheLoggerThatTheFirstInitMade) {
  StartWithoutTables();
  EXPECT_EQ(standin::LoggersAlive(), 1);
  CTqSymbolApp app;
  app.ExitInstance();
  EXPECT_EQ(standin::LoggersAlive(), 0);
  EXPECT_EQ(tq::Log(), nullptr);
}

TEST_F(TqSymbolApp, ExitWithoutALoggerDoesNothing) {
  CTqSymbolApp app;
  app.ExitInstance();
  app.ExitInstance();
  EXPECT_EQ(standin::LoggersAlive(), 0);
}

TEST_F(TqSymbolApp, ThereIsNothingToPrepareAtTheStart) {
  CTqSymbolApp app;
  EXPECT_TRUE(app.InitInstance());
}

// A terminal may keep a manager in a static object that is destroyed after the library's own.
TEST_F(TqSymbolApp, AManagerThatOutlivesTheLoggerWritesNoLines) {
  StartWithoutTables();
  CTqSymbolApp().ExitInstance();
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.AddSymbolList("A", 0, "one", "2330.TW", 1, 0), 1);
  EXPECT_EQ(standin::LogLines().size(), lines);
}

TEST_F(TqSymbolApp, TheNextInitMakesANewLogger) {
  StartWithoutTables();
  CTqSymbolApp().ExitInstance();
  StartWithoutTables();
  EXPECT_EQ(standin::LoggersAlive(), 1);
}

} // namespace
