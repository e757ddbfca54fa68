// A shared library that a client loads while it runs.
#pragma once

#include <filesystem>

namespace architecture {

class Module {
 public:
  // Throws std::runtime_error if it can't be loaded.
  explicit Module(const std::filesystem::path& path);
  ~Module();
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  // The exported function of that name, as the compiler spells it; null if there is none.
  template <class Function>
  Function* Find(const char* name) const {
    return reinterpret_cast<Function*>(FindSymbol(name));
  }

 private:
  using Symbol = void (*)();
  Symbol FindSymbol(const char* name) const;

  void* handle_;
};

}  // namespace architecture
