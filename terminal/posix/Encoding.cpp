#include "terminal/control/Encoding.h"

#include <cstdlib>
#include <iconv.h>

#include "platform/CodePage.h"

namespace standin {
namespace {

bool IsAscii(std::string_view text) {
  for (const char c : text)
    if (static_cast<unsigned char>(c) >= 0x80)
      return false;
  return true;
}

// The length of what cannot be converted: one whole character, so that the second byte of a
// user-defined character is not taken for a letter or a lead byte.
std::size_t Utf8Width(std::string_view rest) {
  std::size_t width = 1;
  while (width < rest.size() && (static_cast<unsigned char>(rest[width]) & 0xC0) == 0x80)
    ++width;
  return width;
}
std::size_t AnsiWidth(std::string_view rest) {
  return tq::CharLength(rest.data(), rest.data() + rest.size());
}

class Converter {
public:
  Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  ~Converter() {
    if (Usable())
      iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  std::string Convert(std::string_view text, std::size_t (*width)(std::string_view)) {
    if (IsAscii(text))
      return std::string(text);
    std::string result;
    while (!text.empty()) {
      ConvertRun(text, result);
      if (text.empty())
        break;
      result += '?';
      text.remove_prefix(width(text));
    }
    return result;
  }

private:
  bool Usable() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  // Converts as much as possible and removes it from `text`.
  void ConvertRun(std::string_view& text, std::string& result) {
    if (!Usable())
      return;
    // No conversion between these encodings makes a text more than three times as long.
    std::string buffer(text.size() * 3 + 4, '\0');
    char* in = const_cast<char*>(text.data());
    char* out = buffer.data();
    std::size_t inLeft = text.size();
    std::size_t outLeft = buffer.size();
    iconv(handle_, &in, &inLeft, &out, &outLeft);
    result.append(buffer, 0, buffer.size() - outLeft);
    text.remove_prefix(text.size() - inLeft);
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
  }

  iconv_t handle_;
};

} // namespace

std::string Encode(std::string_view utf8, Language language) {
  static Converter traditional("CP950", "UTF-8");
  static Converter simplified("CP936", "UTF-8");
  return (language == Language::Traditional ? traditional : simplified).Convert(utf8, Utf8Width);
}

std::string Decode(std::string_view text, Language language) {
  static Converter traditional("UTF-8", "CP950");
  static Converter simplified("UTF-8", "CP936");
  return (language == Language::Traditional ? traditional : simplified).Convert(text, AnsiWidth);
}

Language StartLanguage() {
  const char* wanted = std::getenv("TQ_LANG");
  return wanted && std::string_view(wanted) == "cn" ? Language::Simplified : Language::Traditional;
}

} // namespace standin
