#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

#include "terminal/StandIn.h"
#include "tests/support/Windows.h"

namespace {

// Fails each test that asked for the interface language, its fixture included: one that does not
// ask need not run in every language.
class LanguageGuard : public testing::EmptyTestEventListener {
public:
  void OnTestStart(const testing::TestInfo&) override { before_ = standin::LanguageQuestions(); }
  void OnTestEnd(const testing::TestInfo&) override {
    if (standin::LanguageQuestions() != before_)
      ADD_FAILURE() << "asks for the language: it is no test of tests/language-neutral.txt";
  }

private:
  long before_ = 0;
};

bool RunsInNoLanguage() {
  const char* const language = std::getenv("TQ_LANG");
  return language != nullptr && std::string_view(language) == "none";
}

} // namespace

#ifdef TQ_SANITIZE
// A report tells where memory was allocated with so many calls. To note all of them at each
// allocation takes a tenth of a run. What was freed is kept from being given out again until so
// much has been freed, several times what a test holds. More than the processor's cache has room
// for takes a quarter of a run.
extern "C" const char* __asan_default_options() {
  return "malloc_context_size=6:quarantine_size_mb=32";
}
#endif

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (RunsInNoLanguage())
    testing::UnitTest::GetInstance()->listeners().Append(new LanguageGuard);
  PrepareWindows();
  return RUN_ALL_TESTS();
}
