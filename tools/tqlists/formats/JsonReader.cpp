// Lists from a JSON document, read as a stream of its parts.
#include "tools/tqlists/formats/Format.h"
#include "tools/tqlists/formats/JsonKeys.h"
#include "tools/tqlists/formats/Place.h"

#include <nlohmann/json.hpp>

#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace tqlists {
namespace {

using Json = nlohmann::json;

// Where in the document a value stands.
enum class Within { Document, Root, Lists, List, Symbols, Entry, Unknown };

// Goes over the text and leaves word how far it is.
class Watched {
public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  Watched(const char* at, std::size_t& done) : at_(at), done_(&done) {}
  reference operator*() const { return *at_; }
  Watched& operator++() {
    ++at_;
    ++*done_;
    return *this;
  }
  bool operator==(const Watched& other) const { return at_ == other.at_; }
  bool operator!=(const Watched& other) const { return at_ != other.at_; }

private:
  const char* at_;
  std::size_t* done_;
};

// Takes the parts of one document.
class Parts : public nlohmann::json_sax<Json> {
public:
  Parts(std::string_view text, const std::string& stem, const TakeList& take, Notes& notes,
        Progress& progress)
      : places_(text), stem_(stem), take_(take), notes_(notes), progress_(progress) {}

  std::size_t done = 0; // bytes that the parser has read
  int defaultList = -1;
  int lists = 0;
  bool sawLists = false;

  bool null() override { return true; }
  bool boolean(bool) override { return Unexpected(); }
  bool number_integer(number_integer_t) override { return Unexpected(); }
  bool number_unsigned(number_unsigned_t value) override;
  bool number_float(number_float_t, const string_t&) override { return Unexpected(); }
  bool string(string_t& value) override;
  bool binary(binary_t&) override { return Unexpected(); }
  bool start_object(std::size_t) override;
  bool key(string_t& name) override;
  bool end_object() override;
  bool start_array(std::size_t) override;
  bool end_array() override;
  bool parse_error(std::size_t position, const std::string& token,
                   const Json::exception& error) override;

private:
  Within Here() const { return within_.empty() ? Within::Document : within_.back(); }
  // Whether the value that comes is that of a key the program knows.
  bool IsKnown() const;
  bool Unexpected();
  void Note(std::size_t offset, const std::string& reason);
  std::string Clean(const string_t& value);
  void TakeHeading(const string_t& value);

  PlaceFinder places_;
  const std::string& stem_;
  const TakeList& take_;
  Notes& notes_;
  Progress& progress_;
  std::vector<Within> within_;
  std::string key_;
  List list_;
};

void Parts::Note(std::size_t offset, const std::string& reason) {
  const Place place = places_.Find(offset);
  notes_.Add(place.line, place.column, reason);
}

bool Parts::IsKnown() const {
  switch (Here()) {
  case Within::Root:
    return key_ == kKeyDefault || key_ == kKeyLists;
  case Within::List:
    return key_ == kKeyId || key_ == kKeyName || key_ == kKeySymbols;
  case Within::Entry:
    return key_ == kKeyHeading;
  default:
    return Here() != Within::Unknown;
  }
}

// Values of other programs' own keys are passed over in silence.
bool Parts::Unexpected() {
  if (IsKnown())
    Note(done, "a value of another kind than expected; it is left out");
  return true;
}

bool Parts::number_unsigned(number_unsigned_t value) {
  const bool index = Here() == Within::Root && key_ == kKeyDefault &&
                     value <= std::numeric_limits<std::int16_t>::max();
  if (!index)
    return Unexpected();
  defaultList = static_cast<int>(value);
  return true;
}

std::string Parts::Clean(const string_t& value) {
  if (!IsOneLine(value))
    Note(done, kBlankForControl);
  return OneLine(value);
}

void Parts::TakeHeading(const string_t& value) {
  if (LosesComma(value))
    Note(done, kBlankForComma);
  AppendEntry(list_.symbols, HeadingEntry(Clean(value)));
}

bool Parts::string(string_t& value) {
  if (Here() == Within::Symbols || (Here() == Within::List && key_ == kKeySymbols))
    AppendEntry(list_.symbols, Clean(value));
  else if (Here() == Within::Entry && key_ == kKeyHeading)
    TakeHeading(value);
  else if (Here() == Within::List && key_ == kKeyId)
    list_.id = Clean(value);
  else if (Here() == Within::List && key_ == kKeyName)
    list_.name = Clean(value);
  else
    return Unexpected();
  return true;
}

bool Parts::start_object(std::size_t) {
  Within inside = Within::Unknown;
  if (Here() == Within::Document)
    inside = Within::Root;
  else if (Here() == Within::Lists)
    inside = Within::List;
  else if (Here() == Within::Symbols)
    inside = Within::Entry;
  else
    Unexpected();
  if (inside == Within::List)
    list_ = {{}, stem_, {}};
  within_.push_back(inside);
  key_.clear();
  return true;
}

bool Parts::key(string_t& name) {
  key_ = name;
  return true;
}

bool Parts::end_object() {
  const bool list = Here() == Within::List;
  within_.pop_back();
  key_.clear();
  progress_.At(done);
  if (!list)
    return true;
  ++lists;
  take_(std::exchange(list_, {}));
  return true;
}

bool Parts::start_array(std::size_t) {
  Within inside = Within::Unknown;
  if (Here() == Within::Root && key_ == kKeyLists)
    inside = Within::Lists;
  else if (Here() == Within::List && key_ == kKeySymbols)
    inside = Within::Symbols;
  else
    Unexpected();
  sawLists = sawLists || inside == Within::Lists;
  within_.push_back(inside);
  return true;
}

bool Parts::end_array() {
  within_.pop_back();
  key_.clear();
  return true;
}

bool Parts::parse_error(std::size_t position, const std::string&, const Json::exception& error) {
  const std::string words = error.what();
  const std::size_t colon = words.rfind(": ", words.find("; last read"));
  Note(position, "no JSON: " + Shown(colon == std::string::npos ? words : words.substr(colon + 2)));
  return false;
}

class JsonReader : public Reader {
public:
  JsonReader(std::string_view bytes, std::string stem) : bytes_(bytes), stem_(std::move(stem)) {}

  void Read(const TakeList& take, Notes& notes, Progress& progress) override {
    Parts parts(bytes_, stem_, take, notes, progress);
    const char* const end = bytes_.data() + bytes_.size();
    broken_ =
        !Json::sax_parse(Watched(bytes_.data(), parts.done), Watched(end, parts.done), &parts);
    default_ = parts.defaultList < parts.lists ? parts.defaultList : -1;
    if (default_ != parts.defaultList)
      notes.Add(0, 0, "\"default\" is the place of no list");
    if (broken_ || parts.sawLists)
      return;
    notes.Add(1, 1, "the document has no array \"lists\"");
    broken_ = true;
  }

private:
  const std::string_view bytes_;
  const std::string stem_;
};

} // namespace

std::unique_ptr<Reader> MakeJsonReader(std::string_view bytes, const std::string& stem) {
  return std::make_unique<JsonReader>(bytes, stem);
}

} // namespace tqlists
