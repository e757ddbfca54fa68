// The dependency-walking library.
#pragma once

namespace ZnDwgDepends {

// Start and stop the library; true on success.  The library is bound at the first call of any of
// its operations, not before.
bool initializeEconveyEngine();
bool unInitializeEconveyEngine();

// The failures that the library reports, by number; `ThrowForCondition` gives each its exception.
struct DwgDepends {
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
};

// What stands behind the operations above; each virtual operation is the one of the same name.
class Provider {
 public:
  virtual ~Provider() = default;
  virtual bool initializeEconveyEngine() = 0;
  virtual bool unInitializeEconveyEngine() = 0;
};

// Binds the library: called at the first call of any operation, once, and never if there is none.
using Binder = Provider* (*)();

// Installs how the library is bound, and forgets what was bound before.
void InstallBinder(Binder binder);

}  // namespace ZnDwgDepends
