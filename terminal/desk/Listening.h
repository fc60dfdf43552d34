// Hears what the library tells the services. Here they are the stand-in's; in a terminal of your
// own it is its TQSCall, its log and its message boxes that add to the news.
#pragma once

#include "terminal/desk/News.h"

namespace desk {

class Listening {
public:
  // Until it goes. The news outlive it.
  explicit Listening(News& news);
  ~Listening();
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;
};

} // namespace desk
