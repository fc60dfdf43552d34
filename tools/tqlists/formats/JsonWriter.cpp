// Lists as one JSON document, a line for each list.
#include "tools/tqlists/formats/JsonKeys.h"
#include "tools/tqlists/formats/Writer.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace tqlists {
namespace {

using OrderedJson = nlohmann::ordered_json;

OrderedJson JsonOf(std::string_view entry) {
  const std::string_view heading = HeadingText(entry);
  return heading.empty() ? OrderedJson(entry) : OrderedJson{{kKeyHeading, heading}};
}

OrderedJson JsonOf(const List& list) {
  OrderedJson symbols = OrderedJson::array();
  ForEachEntry(list.symbols, [&](std::string_view entry) { symbols.push_back(JsonOf(entry)); });
  return {{kKeyId, list.id}, {kKeyName, list.name}, {kKeySymbols, std::move(symbols)}};
}

// The document is put together list by list: all of it need not be in memory.
class JsonWriter : public Writer {
public:
  explicit JsonWriter(Sink sink) : sink_(std::move(sink)) {}

  void Begin(int defaultList) override {
    sink_("{\"" + std::string(kKeyDefault) + "\": " +
          (defaultList < 0 ? "null" : std::to_string(defaultList)) + ",\n\"" + kKeyLists + "\": [");
  }
  void Add(const List& list) override {
    sink_(first_ ? "\n" : ",\n");
    first_ = false;
    sink_(JsonOf(list).dump(-1, ' ', false, OrderedJson::error_handler_t::replace));
  }
  void End() override { sink_("\n]}\n"); }

private:
  const Sink sink_;
  bool first_ = true;
};

} // namespace

std::unique_ptr<Writer> MakeJsonWriter(Sink sink) {
  return std::make_unique<JsonWriter>(std::move(sink));
}

} // namespace tqlists
