// Who is told when a list changes its identifier or its name.
#pragma once

class CSymbolList;

namespace tq {

// Follows the identifier and the name of a list. The list calls it before and after each change of
// them, and when it is destroyed.
class ListFollower {
public:
  virtual void ForgetId(CSymbolList& list) = 0;
  virtual void EnterId(CSymbolList& list) noexcept = 0;
  virtual void ForgetName(CSymbolList& list) = 0;
  virtual void EnterName(CSymbolList& list) noexcept = 0;
  virtual void Remove(CSymbolList& list) = 0;

protected:
  ~ListFollower() = default;
};

} // namespace tq
