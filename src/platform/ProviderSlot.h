// Where the one provider of a library is kept.
#pragma once

#include <cassert>

namespace platform {

// Holds a pointer to the installed provider, which it doesn't own.  Each library has one slot, in
// one .cpp, so that there is one per process on every system; it is `constinit`, since providers
// are installed before other static objects are made.
template <class Provider>
class ProviderSlot {
 public:
  // Installs `provider` and returns the one that was there, or null.
  Provider* Install(Provider* provider) {
    Provider* const previous = provider_;
    provider_ = provider;
    return previous;
  }

  Provider& Get() const {
    assert(provider_ != nullptr && "no provider installed");
    return *provider_;
  }

 private:
  Provider* provider_ = nullptr;
};

}  // namespace platform
