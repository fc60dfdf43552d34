// Where dialogs have no screen the log says why, once.
#include <algorithm>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "platform/framework/window/WindowKind.h"
#include "tests/support/StandInTest.h"
#include "tests/support/User.h"
#include "tqSymbol.h"

namespace {

// An environment of this test's own.
class Environment {
public:
  explicit Environment(const char* name, const char* value) : name_(name) {
    if (const char* const now = std::getenv(name)) {
      before_ = now;
      was_ = true;
    }
    Set(value);
  }
  ~Environment() { Set(was_ ? before_.c_str() : nullptr); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

private:
  void Set(const char* value) const {
    value == nullptr ? ::unsetenv(name_) : ::setenv(name_, value, 1);
  }
  const char* name_;
  std::string before_;
  bool was_ = false;
};

class NoScreenTest : public StandInTest {
protected:
  // The lines that say that there is no screen, after a dialog of the library's.
  static std::ptrdiff_t Told() {
    CString name;
    CString code;
    WhenDialogOpens([](User& user) { user.CloseByTitleBar(); });
    CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code);
    const auto lines = standin::LogLines();
    return std::count_if(lines.begin(), lines.end(), [](const auto& line) {
      return line.level == 64 && line.text.rfind("Dialogs have no screen: ", 0) == 0 &&
             line.text.size() > 30;
    });
  }

private:
  const Environment display_{"DISPLAY", nullptr};
  const Environment wayland_{"WAYLAND_DISPLAY", nullptr};
  const Environment platform_{"QT_QPA_PLATFORM", nullptr};
  const Environment host_{"TQ_TEST_HOST", nullptr};
};

TEST_F(NoScreenTest, TheLogSaysWhyOnce) {
  {
    const Environment choice("TQSYMBOL_WINDOWS", "memory"); // nothing has been told yet
    EXPECT_EQ(Told(), 0);
  }
  const Environment choice("TQSYMBOL_WINDOWS", nullptr);
  EXPECT_EQ(Told(), 1);
  EXPECT_NE(std::string(tq::WindowsMissing()), "");
  EXPECT_EQ(Told(), 1);
}

TEST_F(NoScreenTest, MemoryThatWasChosenIsNoNews) {
  const Environment choice("TQSYMBOL_WINDOWS", "memory");
  EXPECT_EQ(Told(), 0);
  EXPECT_EQ(std::string(tq::WindowsMissing()), "");
}

TEST_F(NoScreenTest, AScreenThatIsDemandedAndNotThereFails) {
  const Environment choice("TQSYMBOL_WINDOWS", "screen");
  CString name;
  CString code;
  EXPECT_EQ(CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code), CDialog::Failed);
}

} // namespace
