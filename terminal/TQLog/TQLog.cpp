#include "platform/services/TQLog.h"

#include <cstdarg>
#include <memory>

#include "terminal/TQLog/LogFile.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

struct Logger {
  std::unique_ptr<std::FILE, CloseFile> file;
  std::string prefix;
  bool flush = false;
  int level = 0;
};

Logger& Self(void* impl) {
  return *static_cast<Logger*>(impl);
}

// The result of strftime for the moment.
std::string TimeText(const char* format) {
  char text[32];
  const std::tm now = Now();
  return std::string(text, std::strftime(text, sizeof text, format, &now));
}

std::string Format(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  std::string text;
  if (length > 0) {
    text.resize(static_cast<std::size_t>(length) + 1);
    std::vsnprintf(text.data(), text.size(), format, again);
    text.pop_back();
  }
  va_end(again);
  return text;
}

} // namespace

TQLog::TQLog() : impl_(new Logger) {
  ReportLogger(1);
}

TQLog::~TQLog() {
  ReportLogger(-1);
  delete &Self(impl_);
}

int TQLog::storage(const char* directory, const char* base, const char* prefix, bool daily,
                   bool flush) {
  const bool proceed =
      Begin("TQLog::storage", directory, base, prefix, daily ? 1 : 0, flush ? 1 : 0);
  Logger& logger = Self(impl_);
  logger.file.reset();
  if (!directory || !base || !prefix)
    return 0;
  ReportStorage(directory, base, prefix);
  if (!proceed)
    return 0;
  const std::string day = daily ? TimeText("_%Y%m%d") : std::string();
  logger.file.reset(OpenLogFile(directory, base + day + ".log"));
  logger.prefix = prefix;
  logger.flush = flush;
  return logger.file ? 1 : 0;
}

TQLog& TQLog::operator()(int level) {
  Self(impl_).level = level;
  return *this;
}

int TQLog::write(const char* format, ...) {
  const bool proceed = BeginQuietly("TQLog::write");
  Logger& logger = Self(impl_);
  if (!proceed || !format || !logger.file)
    return 0;
  std::va_list arguments;
  va_start(arguments, format);
  const std::string text = Format(format, arguments);
  va_end(arguments);
  const std::string time = TimeText("%H:%M:%S");
  const int written = std::fprintf(logger.file.get(), "%s %s [%d] %s\n", logger.prefix.c_str(),
                                   time.c_str(), logger.level, text.c_str());
  if (logger.flush)
    std::fflush(logger.file.get());
  ReportLine(logger.level, text);
  return written > 0 ? 1 : 0;
}
