#include "terminal/control/Reports.h"

#include <atomic>
#include <deque>

#include "terminal/control/MessageBox.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

constexpr int kButtonOk = 1;

struct Reports {
  std::vector<LogLine> lines;
  std::string storage;
  std::vector<Message> messages;
  std::vector<Notification> notifications;
  int answer = kButtonOk;
  std::deque<int> inTurn; // used before that one
  bool shown = false;     // messages are shown to somebody, who answers them
  Listener listener;
};

Reports& TheReports() {
  static Reports reports;
  return reports;
}

// The listener may be replaced while it hears: so it is a copy that does, and of the report too.
template <class REPORT> void Tell(std::function<void(const REPORT&)> hear, REPORT report) {
  if (hear)
    hear(report);
}

// Loggers survive a Reset: the library owns them.
int loggersAlive = 0;

// Services are asked from several threads in some tests.
std::atomic<long> languageQuestions = 0;

Language& TheLanguage() {
  static Language language = StartLanguage();
  return language;
}

} // namespace

Language InterfaceLanguage() {
  ++languageQuestions;
  return TheLanguage();
}

long LanguageQuestions() {
  return languageQuestions;
}

void SetTraditional(bool traditional) {
  TheLanguage() = traditional ? Language::Traditional : Language::Simplified;
}

void ResetLanguage() {
  TheLanguage() = StartLanguage();
}

std::string ToAnsi(std::string_view utf8) {
  return Encode(utf8, InterfaceLanguage());
}

std::string FromAnsi(std::string_view ansi) {
  return Decode(ansi, InterfaceLanguage());
}

void ReportLine(int level, std::string_view text) {
  TheReports().lines.push_back({level, std::string(text)});
  Tell(TheReports().listener.line, TheReports().lines.back());
}

void ReportStorage(std::string_view directory, std::string_view base, std::string_view prefix) {
  std::string& storage = TheReports().storage;
  storage.assign(directory).append("|").append(base).append("|").append(prefix);
}

void ReportLogger(int change) {
  loggersAlive += change;
}

namespace {

int NextAnswer() {
  Reports& reports = TheReports();
  if (reports.inTurn.empty())
    return reports.answer;
  const int answer = reports.inTurn.front();
  reports.inTurn.pop_front();
  return answer;
}

} // namespace

int ReportMessage(const Message& message) {
  TheReports().messages.push_back(message);
  Tell(TheReports().listener.message, message);
  const int pressed = TheReports().shown ? ShowBox(message) : 0;
  return pressed != 0 ? pressed : NextAnswer();
}

void ReportNotification(Notification notification) {
  TheReports().notifications.push_back(std::move(notification));
  Tell(TheReports().listener.notification, TheReports().notifications.back());
}

void Listen(Listener listener) {
  TheReports().listener = std::move(listener);
}

const std::vector<LogLine>& LogLines() {
  return TheReports().lines;
}

int LoggersAlive() {
  return loggersAlive;
}

std::string LogStorage() {
  return TheReports().storage;
}

const std::vector<Message>& Messages() {
  return TheReports().messages;
}

void AnswerMessages(int button) {
  TheReports().answer = button;
  TheReports().inTurn.clear();
}

void AnswerMessagesInTurn(std::vector<int> buttons) {
  TheReports().inTurn.assign(buttons.begin(), buttons.end());
}

void ShowMessages(bool on) {
  TheReports().shown = on;
}

size_t WaitingAnswers() {
  return TheReports().inTurn.size();
}

const std::vector<Notification>& Notifications() {
  return TheReports().notifications;
}

void ResetReports() {
  TheReports() = Reports();
}

} // namespace standin
