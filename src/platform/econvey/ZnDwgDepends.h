// The dependency-walking library.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class ZnDbDatabase;

namespace ZnDwgDepends {

// Start and stop the library; true on success.  The library is bound at the first call of any of
// its operations, not before.
bool initializeEconveyEngine();
bool unInitializeEconveyEngine();

// What kind of file a node stands for: -1 for an unknown one, otherwise 0 to 14.
using FileType = int;

// One file that a walk found: the walked drawing, or a reference of it or of one below it.  Nodes
// make a tree, in which each reference has a node of its own.  Whoever gets a node deletes it, and
// that releases it alone, not those below it.
class File {
 public:
  virtual ~File() = default;
  // The file's full path if it was found, otherwise the path as the drawing stores it; of the
  // walked drawing the path that the walk was given.  Never null.
  virtual const wchar_t* filename() const = 0;
  virtual FileType fileType() const = 0;
  // Who is referred to by this very file, in the walk's order; an entry may be null.
  virtual const std::vector<File*>& getDirectDependents() const = 0;
  // The opened drawing, which belongs to the node; null for every file whose drawing isn't kept.
  virtual const ZnDbDatabase* database() const = 0;
  // What tells the reference from the others of the walk: the handle of the record that makes it.
  virtual std::uint64_t xrefId() const = 0;

 protected:
  File() = default;
  File(const File&) = default;
  File& operator=(const File&) = default;
};

// The class of every node that a walk makes.
class DwgFile : public File {
 public:
  // Fills `dependents` with what hangs under this node: with those of those too if `all`.
  virtual bool getDependents(std::vector<File*>& dependents, bool all) const = 0;
};

// What a walk looks for; docs/references.md tells the bits.
using DwgDependsSettings = std::uint32_t;

class DependsBody;

// One walk.
class DwgDepends {
 public:
  // The failures that the library reports, by number; `ThrowForCondition` gives each its exception.
  enum ErrorCondition : int {
    kNoError = 0,
    kUnknown = 1,
    kNotFound = 2,
    kNoAccess = 3,
    kReadFailed = 4,
    kDigitallySigned = 5,
    kSharingViolation = 6,
    kTooLarge = 7,
    kConversionTo14Failed = 8,
    kConversionTo2000Failed = 9,
    kConversionTo2004Failed = 10,
    kConversionTo2007Failed = 11,
    kConversionTo2010Failed = 12,
    kConversionTo2013Failed = 13,
    kConversionTo2017Failed = 14,
    kSaveFailed = 15,
    kBadHeader = 16,
  };
  // A file's name and what is wrong with it.
  using ErrorInfo = std::pair<std::wstring, ErrorCondition>;

  // Prepares a walk of the drawing at `path`.  The two texts are always empty and `keepsDatabase`
  // is true: the walked drawing stays open as long as its node.  `directOnly`: the drawings that it
  // refers to aren't opened.
  DwgDepends(const wchar_t* path, DwgDependsSettings settings, const wchar_t* reserved1,
             const wchar_t* reserved2, bool directOnly, bool keepsDatabase);
  // Ends the walk, and deletes the nodes if it still owns them.
  ~DwgDepends();
  DwgDepends(const DwgDepends&) = delete;
  DwgDepends& operator=(const DwgDepends&) = delete;

  // False: whoever gets the nodes owns them.  A walked drawing that can't be read is an exception:
  // its node, which has nothing below it, is the walk's whatever was said here.
  void setDeleteRoot(bool deletes);
  // Walks, and fills `files`: the walked drawing first.  `all` is always true: everything below it
  // follows.  Entries may be null.
  bool getDependencies(std::vector<File*>& files, bool all);
  // What went wrong so far, by the names that the nodes tell.
  bool getErrorInfos(std::vector<ErrorInfo>& errors);

 private:
  std::unique_ptr<DependsBody> body_;
};

// What stands behind one DwgDepends; each operation is the one of the same name there.
class DependsBody {
 public:
  virtual ~DependsBody() = default;
  virtual void setDeleteRoot(bool deletes) = 0;
  virtual bool getDependencies(std::vector<File*>& files, bool all) = 0;
  virtual bool getErrorInfos(std::vector<DwgDepends::ErrorInfo>& errors) = 0;
};

// What stands behind the operations above; each virtual operation is the one of the same name.
class Provider {
 public:
  virtual ~Provider() = default;
  virtual bool initializeEconveyEngine() = 0;
  virtual bool unInitializeEconveyEngine() = 0;
  // What stands behind a new DwgDepends, built with these arguments.
  virtual std::unique_ptr<DependsBody> createDepends(const wchar_t* path,
                                                     DwgDependsSettings settings,
                                                     const wchar_t* reserved1,
                                                     const wchar_t* reserved2, bool directOnly,
                                                     bool keepsDatabase) = 0;
};

// Binds the library: called at the first call of any operation, once, and never if there is none.
using Binder = Provider* (*)();

// Installs how the library is bound, and forgets what was bound before.
void InstallBinder(Binder binder);

}  // namespace ZnDwgDepends
