// What the library told the services, kept for the tests: log lines, messages, notifications. Also
// the interface language, which the services ask for.
#pragma once

#include <string_view>

#include "terminal/StandIn.h"
#include "terminal/control/Encoding.h"

namespace standin {

TQSTANDIN_API Language InterfaceLanguage();

TQSTANDIN_API void ReportLine(int level, std::string_view text);
TQSTANDIN_API void ReportStorage(std::string_view directory, std::string_view base,
                                 std::string_view prefix);
// A logger was created (1) or destroyed (-1).
TQSTANDIN_API void ReportLogger(int change);

// Returns the button that answers the message box.
TQSTANDIN_API int ReportMessage(const Message& message);
TQSTANDIN_API void ReportNotification(Notification notification);

} // namespace standin
