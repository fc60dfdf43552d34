// Tells a member function whether its object was destroyed by what it called.
//
// The symbol-data service may handle the terminal's messages while it is asked, and the terminal
// may then delete the very list that asks. The object keeps a pointer to the innermost watch on it,
// null at the start, and cuts them all in its destructor; a function that asked the service looks
// at its watch before it touches the object again.
#pragma once

namespace tq {

class LifeWatch {
public:
  // `innermost` is the object's pointer.
  explicit LifeWatch(LifeWatch*& innermost) : place_(&innermost), outer_(innermost) {
    innermost = this;
  }
  ~LifeWatch() {
    if (place_ != nullptr)
      *place_ = outer_;
  }
  LifeWatch(const LifeWatch&) = delete;
  LifeWatch& operator=(const LifeWatch&) = delete;

  bool IsGone() const { return place_ == nullptr; }

  // For the object's destructor.
  static void Cut(LifeWatch* innermost) {
    for (LifeWatch* watch = innermost; watch != nullptr; watch = watch->outer_)
      watch->place_ = nullptr;
  }

private:
  LifeWatch** place_; // null once the object is gone
  LifeWatch* outer_;  // of a call that is further out
};

} // namespace tq
