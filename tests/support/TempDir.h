// A fresh directory for one test, removed with all that is in it.
#pragma once

#include <string>
#include <vector>

class TempDir {
public:
  // `name` is the directory's own name, UTF-8; the file system gets it in the process's code page.
  // It is made inside another fresh directory, so any name is free.
  explicit TempDir(const std::string& name = "data");
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  // Removes it with all that is in it, before the end of the test.
  void Remove();

  // The directory as a terminal hands it to the library: bytes in the code page, the system's
  // separators, none at the end.
  const std::string& Path() const { return path_; }
  // A file of it, joined as the library joins: by a backslash.
  std::string Joined(const std::string& name) const { return path_ + "\\" + name; }
  // The same as the system's C library takes it.
  std::string Native(const std::string& name) const;

  // Whole files. Write makes or replaces the file and adds a test failure when it cannot; Read
  // gives an empty text when there is no such file.
  void Write(const std::string& name, const std::string& bytes) const;
  std::string Read(const std::string& name) const;
  bool Exists(const std::string& name) const;
  void MakeDirectory(const std::string& name) const;
  // The names of all entries, sorted; bytes in the code page.
  std::vector<std::string> Names() const;

  static bool IsDirectory(const std::string& path);

private:
  std::string outer_;
  std::string path_;
};
