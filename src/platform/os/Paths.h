// Paths, folders and the search for a file, with Windows' names and meanings.
//
// On every system "C:\...", "\..." and "\\server\share\..." are absolute; where paths begin with a
// slash, such ones are, too.  A backslash separates on every system, and a name that exists in
// other letters' case alone exists.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ZDXEngine/Automation.h"

namespace os {

// How many characters a buffer for a path holds, the terminator among them.
inline constexpr std::size_t kPathSize = 260;
// The user's roaming application data, made if it isn't there.
inline constexpr int kRoamingAppDataCreated = 0x801A;

// What the bounded copies answer: 0, or why nothing was copied; the target is empty then.
using Errno = int;
inline constexpr Errno kBufferTooSmall = 34;

// Writes the path of the folder `which` into `path`, of kPathSize characters.  `owner` and `token`
// are null, `flags` is 0.  Negative on failure.
HRESULT SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags, wchar_t* path);
// Appends `name` as the last element to `path`, of kPathSize characters.  Nonzero on success.
int PathAppendW(wchar_t* path, const wchar_t* name);
// Nonzero if there is such a file or folder; never for a path of kPathSize characters or more.
int PathFileExistsW(const wchar_t* path);
// Nonzero unless `path` is absolute.
int PathIsRelativeW(const wchar_t* path);
// Joins `folder` and `file`, of which an absolute one stands for itself, into `path`, of kPathSize
// characters, without "." and "..".  `path`, or null if that fails; it is empty then.
wchar_t* PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file);
// Cuts the last element off `path` and the separator before it.  Nonzero if there was one.
int PathRemoveFileSpecW(wchar_t* path);
// Looks for the file `name` in the folders of `folders`, which are separated as the system's search
// path is, or along the system's own path if it is null: the folder of the process's executable,
// the working folder, the folders of the search path.  An absolute name is looked for as it is.
// `extension`, with its dot, or null, is added to a name without one.  Writes the full path into
// `path`, of `size` characters, and lets `leaf` point at its last element.  The length of the path
// without the terminator; if `size` is too small, the size that is needed; 0 if nothing is found.
std::uint32_t SearchPathW(const wchar_t* folders, const wchar_t* name, const wchar_t* extension,
                          std::uint32_t size, wchar_t* path, wchar_t** leaf);
// Makes a folder; `security` is null.  Nonzero on success.
int CreateDirectoryW(const wchar_t* path, void* security);
// Writes the path of the process's executable, for the null `module`, into `path`, of `size`
// characters, and tells its length; 0 on failure, which leaves `path` as it is.
std::uint32_t GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size);
// Takes `path` apart: the drive with its colon, the directory with the separators around it, the
// name, and the extension with its dot.  Sizes are those of the buffers in characters.
Errno _wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize, wchar_t* directory,
                    std::size_t directorySize, wchar_t* name, std::size_t nameSize,
                    wchar_t* extension, std::size_t extensionSize);
// Copy and append `source` to `target`, of `size` characters.
Errno wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source);
Errno wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source);
// Copies the first `count` characters of `source`, or all if it has fewer, and a terminator, which
// must find room, too.
Errno wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source, std::size_t count);

// What stands behind the operations above; each virtual operation is the one of the same name.
class PathProvider {
 public:
  virtual ~PathProvider() = default;
  virtual HRESULT SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags,
                                   wchar_t* path) = 0;
  virtual int PathAppendW(wchar_t* path, const wchar_t* name) = 0;
  virtual int PathFileExistsW(const wchar_t* path) = 0;
  virtual int PathIsRelativeW(const wchar_t* path) = 0;
  virtual wchar_t* PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) = 0;
  virtual int PathRemoveFileSpecW(wchar_t* path) = 0;
  virtual std::uint32_t SearchPathW(const wchar_t* folders, const wchar_t* name,
                                    const wchar_t* extension, std::uint32_t size, wchar_t* path,
                                    wchar_t** leaf) = 0;
  virtual int CreateDirectoryW(const wchar_t* path, void* security) = 0;
  virtual std::uint32_t GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size) = 0;
  virtual Errno _wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize,
                              wchar_t* directory, std::size_t directorySize, wchar_t* name,
                              std::size_t nameSize, wchar_t* extension,
                              std::size_t extensionSize) = 0;
  virtual Errno wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source) = 0;
  virtual Errno wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source) = 0;
  virtual Errno wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source,
                          std::size_t count) = 0;
};

// As os::InstallProvider.
PathProvider* InstallPathProvider(PathProvider* provider);

}  // namespace os
