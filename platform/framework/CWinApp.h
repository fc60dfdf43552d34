// CWinApp: what a library does once when it is loaded and once when it is unloaded.
#pragma once

class CWinApp {
public:
  CWinApp() = default;
  virtual ~CWinApp() = default;
  CWinApp(const CWinApp&) = delete;
  CWinApp& operator=(const CWinApp&) = delete;

  // False says that the library cannot work; nothing else follows from it.
  virtual bool InitInstance() { return true; }
  // Called whatever InitInstance answered. The result is the process's affair.
  virtual int ExitInstance() { return 0; }
};

namespace tq {

// The one object of a library that carries its application: an object of static storage, which the
// system makes and destroys when the library comes and goes. Other objects of static storage in the
// same file come before it if they stand before it.
template <class APP> class LibraryApp {
public:
  LibraryApp() { usable_ = app_.InitInstance(); }
  ~LibraryApp() { app_.ExitInstance(); }
  LibraryApp(const LibraryApp&) = delete;
  LibraryApp& operator=(const LibraryApp&) = delete;

  APP& Get() { return app_; }
  bool IsUsable() const { return usable_; }

private:
  APP app_;
  bool usable_ = false;
};

} // namespace tq
