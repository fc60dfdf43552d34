// The first start of the process opens the log, once, so the matrix cannot repeat it.
#include <gtest/gtest.h>

#include "platform/Log.h"
#include "tests/operations/Operations.h"
#include "tests/operations/Subject.h"

namespace operations {
namespace {

TEST(OpeningTheLog, StandsEveryOperationFromWithin) {
  PrepareServices();
  for (const char* service : {"TQLog::storage", "TQLog::write"}) {
    for (std::size_t i = 0; i < All().size(); ++i) {
      SCOPED_TRACE(NameOf(All(), i));
      Subject subject;
      tq::CloseLog();
      standin::OnCall(service, [&] { All()[i].run(subject.Manager(), Arguments()); });
      subject.Manager().Init("memory", 0, 1, 0, nullptr, 0, 1);
      standin::OnCall(service, {});
      EXPECT_NE(tq::Log(), nullptr);
      EXPECT_EQ(subject.Broken(), "");
    }
  }
  standin::Reset();
}

} // namespace
} // namespace operations
