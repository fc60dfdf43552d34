#include "terminal/user/UserScripts.h"

#include <deque>
#include <utility>

namespace standin {

namespace {

struct Waiting {
  std::deque<UserScript> scripts;
  Complaint complain = nullptr;
};

Waiting& TheWaiting() {
  static Waiting waiting;
  return waiting;
}

void Cancel(CDialog& dialog, const std::string& why) {
  if (const Complaint complain = TheWaiting().complain)
    complain(why);
  dialog.EndDialog(CDialog::Cancelled);
}

void ActAsUser(CDialog& dialog) {
  std::deque<UserScript>& scripts = TheWaiting().scripts;
  if (scripts.empty())
    return Cancel(dialog,
                  "a dialog opened that nobody has a script for: " + Utf8(dialog.GetText()));
  const UserScript script = std::move(scripts.front());
  scripts.pop_front();
  User user(dialog);
  script(user);
  if (user.IsUp() && !user.MayStayUp())
    Cancel(dialog, "the script left the dialog up:\n" + user.Screen());
}

} // namespace

void WhenDialogOpens(UserScript script, Complaint complain) {
  tq::SetModalHandler(ActAsUser);
  TheWaiting().scripts.push_back(std::move(script));
  TheWaiting().complain = complain;
}

size_t TakeUnusedScripts() {
  const size_t count = TheWaiting().scripts.size();
  TheWaiting().scripts.clear();
  return count;
}

} // namespace standin
