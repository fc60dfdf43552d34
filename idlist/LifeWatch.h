// Tells a member function whether its object was destroyed during a call that it made.
//
// The symbol-data service may dispatch the terminal's messages, and the terminal may then delete
// the very list that is calling. The object keeps a linked list of the watches on it, innermost
// first, and detaches them in its destructor; after a call of the service a member function checks
// its watch before it touches the object again.
#pragma once

namespace tq {

class LifeWatch {
public:
  // `innermost` is the object's head of the list, null at the start.
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

  // Called by the object's destructor.
  static void Cut(LifeWatch* innermost) {
    for (LifeWatch* watch = innermost; watch != nullptr; watch = watch->outer_)
      watch->place_ = nullptr;
  }

private:
  LifeWatch** place_; // the object's head; null once the object is gone
  LifeWatch* outer_;  // the watch of an enclosing call
};

} // namespace tq
