// Objects of the drawing library, given back at the end of a scope, also when an exception passes.
#pragma once

#include <memory>

#include "platform/zndb/ZnDbObjects.h"

namespace ZDXEngine {

// The rule for objects opened for read: one without an object id isn't in a database and is
// deleted, every other is closed.
struct ReleaseByObjectId {
  void operator()(ZnDbObject* object) const {
    if (object->objectId().isNull()) {
      delete object;
    } else {
      object->close();
    }
  }
};

// The rule for dictionaries and tables handed out by a database, which are closed unasked.
struct JustClose {
  void operator()(ZnDbObject* object) const { object->close(); }
};

template <class T>
using ReleasedObject = std::unique_ptr<T, ReleaseByObjectId>;
template <class T>
using ClosedObject = std::unique_ptr<T, JustClose>;

// The object named by `id`; null if it can't be opened as a T.  Whoever asked gives it back.
template <class T>
T* OpenForRead(ZnDbObjectId id) {
  T* object = nullptr;
  const Zent::ErrorStatus status = zndbOpenObject(object, id, T::desc(), ZnDb::kForRead, false);
  return status == Zent::kOk ? object : nullptr;
}

}  // namespace ZDXEngine
