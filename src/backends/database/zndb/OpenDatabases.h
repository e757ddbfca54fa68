// The databases that live at the moment.
#pragma once

#include <algorithm>
#include <vector>

namespace zdx::database {

class EmbeddedDatabase;

class OpenDatabases {
 public:
  void Add(const EmbeddedDatabase* database) { all_.push_back(database); }
  void Remove(const EmbeddedDatabase* database) {
    all_.erase(std::remove(all_.begin(), all_.end(), database), all_.end());
  }
  // In the order in which they were made.
  const std::vector<const EmbeddedDatabase*>& all() const { return all_; }

 private:
  std::vector<const EmbeddedDatabase*> all_;
};

}  // namespace zdx::database
