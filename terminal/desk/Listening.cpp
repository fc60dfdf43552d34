#include "terminal/desk/Listening.h"

#include "platform/framework/window/ResourceContext.h"
#include "terminal/StandIn.h"

namespace desk {
namespace {

// An entry of the string table of the library, whose resources are in force while a dialog of it is
// open; by its number alone otherwise.
CString TextOf(const standin::Message& message) {
  return message.id == 0 ? CString(message.text.c_str()) : tq::ResourceContext::Text(message.id);
}

} // namespace

Listening::Listening(News& news) {
  standin::Listener listener;
  listener.line = [&news](const standin::LogLine& line) {
    news.Add(News::Kind::Logged, line.level, line.text.c_str());
  };
  listener.message = [&news](const standin::Message& message) {
    news.Add(News::Kind::Shown, static_cast<long>(message.id), TextOf(message));
  };
  listener.notification = [&news](const standin::Notification& told) {
    news.Add(News::Kind::Told, told.code, told.reason.c_str());
  };
  standin::Listen(std::move(listener));
}

Listening::~Listening() {
  standin::Listen({});
}

} // namespace desk
