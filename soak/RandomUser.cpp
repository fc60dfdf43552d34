#include "soak/RandomUser.h"

#include <array>

#include "terminal/user/User.h"

namespace soak {
namespace {

using standin::Modifier;
using standin::User;

struct Stroke {
  WindowKey key;
  Modifier modifier;
};

// The controls of all dialogs; what one has not cannot be clicked.
constexpr std::array kButtons = {801, 802, 803, 804, 805, 806, 807, 808, 801, 803, 1};
constexpr std::array kTables = {781, 781, 782};
constexpr std::array kFields = {741, 742, 743};
constexpr std::array kBoxes = {761, 762};
constexpr std::array kStrokes = {
    Stroke{WindowKey::Enter, Modifier::None}, Stroke{WindowKey::Delete, Modifier::None},
    Stroke{WindowKey::F2, Modifier::None},    Stroke{WindowKey::Up, Modifier::Alt},
    Stroke{WindowKey::Down, Modifier::Alt},   Stroke{WindowKey::A, Modifier::Control},
    Stroke{WindowKey::Tab, Modifier::None},   Stroke{WindowKey::Space, Modifier::None},
    Stroke{WindowKey::Z, Modifier::Control},  Stroke{WindowKey::Y, Modifier::Control}};
constexpr std::array kTyped = {"2330", "2317",    "6488", "one", "Two",    ".2330", "x",
                               "",     "2454.TW", "a'b",  "x&y", "許功蓋", " four "};
constexpr std::array kRowModifiers = {Modifier::None, Modifier::None, Modifier::Control,
                                      Modifier::Shift};

void Act(User& user, Random& random) {
  constexpr int kRows = 6;
  switch (random.Draw(8)) {
  case 0:
  case 1:
    user.Click(random.One(kButtons));
    break;
  case 2:
  case 3:
    user.ClickRow(random.One(kTables), random.Draw(kRows), random.One(kRowModifiers));
    break;
  case 4: {
    const Stroke& stroke = random.One(kStrokes);
    user.Press(stroke.key, stroke.modifier);
    break;
  }
  case 5:
    user.Fill(random.One(kFields), random.One(kTyped));
    break;
  case 6:
    user.Select(random.One(kBoxes), random.Draw(kRows));
    break;
  default:
    user.Type(random.One(kTyped));
  }
}

void Leave(User& user, Random& random) {
  constexpr std::array kClosers = {1, 806, 2};
  if (random.Draw(4) > 0)
    user.Click(random.One(kClosers));
  if (user.IsUp())
    user.CloseByTitleBar();
}

} // namespace

void UseAtRandom(CDialog& dialog, Ledger& ledger, Random& random,
                 const std::function<void()>& beside) {
  constexpr int kMostActions = 12;
  constexpr int kBesides = 10;
  User user(dialog);
  for (int actions = random.Draw(kMostActions); actions > 0 && user.IsUp(); --actions) {
    ledger.Add(Count::UserActions);
    Act(user, random);
    if (user.IsUp() && random.OnceIn(kBesides))
      beside();
  }
  if (user.IsUp())
    Leave(user, random);
  if (user.IsUp())
    dialog.EndDialog(CDialog::Cancelled);
}

} // namespace soak
