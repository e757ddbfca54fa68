// Iterators of the drawing library, which whoever asked for them deletes.
#pragma once

#include <memory>

#include "platform/zndb/ZnDbBlocks.h"

namespace ZDXEngine {

// The iterator that `make` sets, or null.  What a failed call leaves is deleted too.
template <class Iterator, class Make>
std::unique_ptr<Iterator> TakeIterator(Make make) {
  Iterator* made = nullptr;
  const Zent::ErrorStatus status = make(made);
  std::unique_ptr<Iterator> iterator(made);
  if (status != Zent::kOk) iterator.reset();
  return iterator;
}

// Over the records of `table`, from the first on.
inline std::unique_ptr<ZnDbSymbolTableIterator> NewIterator(const ZnDbSymbolTable& table) {
  return TakeIterator<ZnDbSymbolTableIterator>(
      [&](ZnDbSymbolTableIterator*& iterator) { return table.newIterator(iterator, true, true); });
}

// Over the entities of `block`, from the first on.
inline std::unique_ptr<ZnDbBlockTableRecordIterator> NewEntityIterator(
    const ZnDbBlockTableRecord& block) {
  return TakeIterator<ZnDbBlockTableRecordIterator>([&](ZnDbBlockTableRecordIterator*& iterator) {
    return block.newIterator(iterator, true, true);
  });
}

// Over the references of `block`.
inline std::unique_ptr<ZnDbBlockReferenceIdIterator> NewReferenceIterator(
    const ZnDbBlockTableRecord& block) {
  return TakeIterator<ZnDbBlockReferenceIdIterator>([&](ZnDbBlockReferenceIdIterator*& iterator) {
    return block.newBlockReferenceIdIterator(iterator);
  });
}

}  // namespace ZDXEngine
