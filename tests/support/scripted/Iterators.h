// The iterators that the stand-in hands out; whoever asked deletes them.
#pragma once

#include "support/scripted/OpenObjects.h"

namespace scripted {

ZnDbSymbolTableIterator* NewTableIterator(OpenObjects& objects, const Table& table,
                                          bool atBeginning, bool skipDeleted);
ZnDbDictionaryIterator* NewDictionaryIterator(OpenObjects& objects, const Dictionary& dictionary);

}  // namespace scripted
