// The files of a scripted world, all in memory.
#pragma once

#include <deque>
#include <map>
#include <string>

#include "platform/os/Files.h"
#include "support/scripted/CallLog.h"
#include "support/scripted/Ledger.h"

namespace scripted {

// A file that was opened is told as "file 1", "file 2" and so on, and is on the ledger until it is
// closed.  A script makes a call fail.
class Files : public os::FileProvider {
 public:
  Files(CallLog& calls, Ledger& ledger) : calls_(calls), ledger_(ledger) {}

  // What each file holds; any other path can't be opened.
  std::map<std::wstring, std::string> contents;
  // The most bytes that the next reads give, one number a read; when they are used up each read
  // gives what it is asked for.
  std::deque<std::uint32_t> readSizes;
  // What a read that succeeds answers, and the count that one that fails leaves behind.
  int readAnswer = 1;
  std::uint32_t countOfFailedRead = 0;

  os::FileHandle CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                             void* security, std::uint32_t disposition, std::uint32_t attributes,
                             os::FileHandle templateFile) override;
  // A failed call leaves bytes in the buffer that nobody may take.
  int ReadFile(os::FileHandle file, void* buffer, std::uint32_t size, std::uint32_t* count,
               void* overlapped) override;
  std::uint32_t SetFilePointer(os::FileHandle file, std::int32_t distance,
                               std::int32_t* distanceHigh, std::uint32_t method) override;
  int CloseHandle(os::FileHandle file) override;

 private:
  struct OpenFile {
    std::string label;
    const std::string* bytes;
    std::size_t position = 0;
  };

  // Null, and noted as misuse, if `file` isn't open.
  OpenFile* Find(os::FileHandle file, const std::string& operation);

  CallLog& calls_;
  Ledger& ledger_;
  std::deque<OpenFile> files_;
};

}  // namespace scripted
