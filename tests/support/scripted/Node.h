// What everything in a scripted drawing has.
#pragma once

#include <string>

namespace scripted {

// Something that can be opened.
struct Node {
  virtual ~Node() = default;
  // How calls on the object are told: "layer 0".
  std::string label;
  // False: the opened object has no object id, and whoever opened it deletes it.
  bool inDatabase = true;
  // True: nobody minds if the opened object is closed more than once.
  bool mayCloseTwice = false;
};

}  // namespace scripted
