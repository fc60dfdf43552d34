// The log: a file for each logger.
#include <TQLog.h>

#include <CodePage.h>

#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <string>

#ifdef _WIN32
#include <direct.h>
#else
#include <sys/stat.h>
#endif

namespace {

struct Log {
  std::FILE* file = nullptr;
  std::string prefix;
  bool flush = false;
};

Log& LogOf(void* impl) {
  return *static_cast<Log*>(impl);
}

void Close(Log& log) {
  if (log.file != nullptr)
    std::fclose(log.file);
  log.file = nullptr;
}

#ifdef _WIN32
std::string SystemPath(std::string path) {
  return path;
}

void MakeDirectory(const std::string& path) {
  ::_mkdir(path.c_str());
}
#else
// The second byte of a character may look like a backslash. Names beyond ASCII would have to be
// converted here.
std::string SystemPath(std::string path) {
  char* const end = path.data() + path.size();
  for (char* at = path.data(); at < end; at += tq::CharLength(at, end))
    if (*at == '\\')
      *at = '/';
  return path;
}

void MakeDirectory(const std::string& path) {
  ::mkdir(path.c_str(), 0777);
}
#endif

std::string Today() {
  const std::time_t now = std::time(nullptr);
  char text[16] = "";
  std::strftime(text, sizeof text, "_%Y%m%d", std::localtime(&now));
  return text;
}

} // namespace

TQLog::TQLog() : impl_(new Log) {}

TQLog::~TQLog() {
  Close(LogOf(impl_));
  delete &LogOf(impl_);
}

int TQLog::storage(const char* directory, const char* base, const char* prefix, bool daily,
                   bool flush) {
  Log& log = LogOf(impl_);
  Close(log);
  if (directory == nullptr || base == nullptr || prefix == nullptr)
    return 0;
  MakeDirectory(SystemPath(directory));
  const std::string name = std::string(directory) + "\\" + base + (daily ? Today() : "") + ".log";
  log.file = std::fopen(SystemPath(name).c_str(), "a");
  log.prefix = prefix;
  log.flush = flush;
  return log.file != nullptr;
}

TQLog& TQLog::operator()(int) {
  return *this;
}

int TQLog::write(const char* format, ...) {
  Log& log = LogOf(impl_);
  if (log.file == nullptr || format == nullptr)
    return 0;
  std::fprintf(log.file, "%s ", log.prefix.c_str());
  va_list arguments;
  va_start(arguments, format);
  std::vfprintf(log.file, format, arguments);
  va_end(arguments);
  std::fputc('\n', log.file);
  return !log.flush || std::fflush(log.file) == 0;
}
