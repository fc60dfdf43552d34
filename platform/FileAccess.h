// Files of the library: whole-file reading and crash-safe saving.
//
// Conventions that hold for every operation of this header
//  1. A path is narrow text in the process's ANSI code page: the directory as the terminal gave it,
//     joined with one backslash to a file name of the library's own, which is plain ASCII
//     ("<directory>\SymbolList.xml"). Everything before that backslash belongs to the user and is
//     taken byte for byte: it may end in a double-byte character whose trail byte is 0x5C, and on
//     POSIX it may be in any encoding. Only the body turns that one backslash into the system's
//     separator; see SeparatorOf.
//  2. A directory path carries no trailing separator and is used as it stands.
//  3. Nothing throws and nothing is shown to the user: the caller reports failures.
//  4. Calls come from the terminal's user-interface thread and are synchronous. Files() may be
//     asked from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tq {

// What the system tells about a regular file without reading it. While it stays equal, the file has
// not been written, as far as can be told from outside. Units and epochs are the system's own.
struct FileStamp {
  std::uint64_t size = 0;     // bytes
  std::uint64_t modified = 0; // the time of the last write; later is greater
  std::uint64_t volume = 0;   // these two identify the file, whatever its name
  std::uint64_t index = 0;
  bool operator==(const FileStamp&) const = default;
};

enum class FileState {
  Missing, // there is no such file, or no such directory: the system says so
  File,    // a regular file, or a link to one
  Other,   // a directory, a device, a pipe
  Unknown, // the system does not tell (rights, a drive that is gone): there may be a file
};

enum class ReadResult {
  Ok,
  Missing,  // no such file, or no such directory
  TooLarge, // the file is longer than the caller's limit; nothing was read
  Failed,   // it exists and cannot be read (rights, a directory, a disk error, no memory)
};

enum class SaveResult {
  Saved,     // the new bytes are in place and have reached the disk
  NotOpened, // the file cannot be opened for writing, or created; nothing was tried
  Failed,    // it could not be written; the old file is as it was
};

class FileAccess {
public:
  virtual ~FileAccess() = default;

  // Reads the whole file into `bytes`, which is replaced when the result is Ok and emptied
  // otherwise. `limit` is the largest size accepted, in bytes. A file whose size or time changes
  // while it is read, because it is being written in place, is read again, up to kReadTries times
  // (platform/ReadSteps.h); Failed when it keeps changing.
  virtual ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) = 0;

  // Makes the file hold exactly these bytes, creating it when it is missing. Anything but Saved
  // leaves the old file as it was (unless the disk breaks while a file is written in place).
  //
  // - A file that cannot be opened for writing (read-only, or on Windows held by another program
  //   without share-write) is refused, although its directory might let us replace it.
  // - The bytes go in one write to "<path>.tmp", are flushed, and that file takes the target's
  //   place: whatever kills the process or fills the disk, the target is the old file or the new
  //   one. What a killed save left in "<path>.tmp" is overwritten by the next save, so leftovers
  //   never pile up.
  // - A link under the temporary name, symbolic or a second name of another file, is not written
  //   through: it is removed, or the save goes in place. What else has that name and is no file
  //   stays.
  // - Where the system refuses to replace (no rights on the directory, a mount point, a directory
  //   or a device under the temporary name, a name without room for the suffix, on Windows a target
  //   held without share-delete), the bytes are written over the target in place, after the room
  //   for them has been reserved. Only this way is not safe against a kill in mid-write.
  // - A symbolic link stays one: the file that it names is replaced. On POSIX mode, owner and group
  //   are kept; another hard link to the file keeps the old bytes. On Windows file attributes are
  //   kept and the access list is the directory's.
  // - Two processes that save the same file at once do not mix: the later one waits up to half a
  //   second and then fails. On Windows a target that somebody holds without share-write is waited
  //   for as long.
  virtual SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) = 0;

  // True for an existing directory (a link to one too).
  virtual bool DirectoryExists(const char* directory) = 0;
  // True for an existing file of any kind that is not a directory. False also when the system does
  // not tell: who creates or overwrites what is missing asks StateOf.
  virtual bool FileExists(const char* path) = 0;
  // What is under that name now. `stamp` is filled for FileState::File and emptied otherwise. One
  // question to the system; links are followed.
  virtual FileState StateOf(const char* path, FileStamp& stamp) = 0;

  // Renames a file within its directory, atomically replacing a file that has the new name. False
  // when that fails: both are then as they were.
  virtual bool RenameFile(const char* from, const char* to) = 0;

  // Deletes a regular file, or a link to one but not what it names. False when that fails, or when
  // something else or nothing has the name.
  virtual bool RemoveFile(const char* path) = 0;

  // The names of the regular files of a directory that begin with `prefix`, plain ASCII, in no
  // order. Names that are not plain ASCII are left out: they are not the library's. False, with no
  // names, when the directory cannot be read to its end.
  virtual bool ListFiles(const char* directory, const char* prefix,
                         std::vector<std::string>& names) = 0;
};

// Whether ListFiles lists a file of that name.
bool IsListedName(const char* name, const char* prefix);

// Forwards every operation to another object, so that a test can override the one that is to fail.
class FileAccessWrapper : public FileAccess {
public:
  // `target` is not owned and must outlive the wrapper.
  explicit FileAccessWrapper(FileAccess& target) : target_(target) {}

  ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    return target_.ReadWholeFile(path, limit, bytes);
  }
  SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    return target_.SaveWholeFile(path, bytes, size);
  }
  bool DirectoryExists(const char* directory) override {
    return target_.DirectoryExists(directory);
  }
  bool FileExists(const char* path) override { return target_.FileExists(path); }
  FileState StateOf(const char* path, FileStamp& stamp) override {
    return target_.StateOf(path, stamp);
  }
  bool RenameFile(const char* from, const char* to) override {
    return target_.RenameFile(from, to);
  }
  bool RemoveFile(const char* path) override { return target_.RemoveFile(path); }
  bool ListFiles(const char* directory, const char* prefix,
                 std::vector<std::string>& names) override {
    return target_.ListFiles(directory, prefix, names);
  }

private:
  FileAccess& target_;
};

// The file access that the library uses: the operating system's unless SetFiles gave another.
FileAccess& Files();

// Replaces it and returns the one before, for restoring that. Null stands for the operating
// system's. `files` is not owned and must outlive its use.
FileAccess* SetFiles(FileAccess* files);

// The operating system's file access: one object for the whole process, never destroyed.
FileAccess& SystemFiles();

// The position of the library's own separator in `path` (convention 1): the last backslash, when a
// plain ASCII file name follows it and no other separator; npos otherwise. Any backslash further
// left is part of the user's directory. Since the library's file names are ASCII, this finds the
// separator without knowing the encoding of the directory: it can neither split a double-byte
// character nor mistake a trail byte for a separator.
std::size_t SeparatorOf(const char* path);

} // namespace tq
