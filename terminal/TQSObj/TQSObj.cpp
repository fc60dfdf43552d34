#include "platform/services/TQSObj.h"

#include "platform/CodePage.h"
#include "terminal/StandIn.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

constexpr std::string_view kNoSection = "";
constexpr std::string_view kFullMenuKey = "FullMenuKey";

} // namespace

int TQSGetUserExtraValue(const char* section, const char* key, char* buffer, int size) {
  const bool proceed = Begin("TQSGetUserExtraValue", section, key, size);
  if (!proceed || !section || !key || !buffer || size <= 0)
    return 0;
  const std::string& value = CurrentMarket().fullMenuKey;
  if (section != kNoSection || key != kFullMenuKey || value.empty())
    return 0;
  tq::CopyCut(buffer, static_cast<std::size_t>(size), ToAnsi(value).c_str());
  return 1;
}
