#include <gmock/gmock.h>
#include <windows.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// The calls of newer systems than the build asks for.
using CreateConsole = HRESULT(WINAPI*)(COORD size, HANDLE input, HANDLE output, DWORD flags,
                                       void** console);
using CloseConsole = void(WINAPI*)(void* console);
constexpr DWORD_PTR kAttributeConsole = 0x20016;

template <class Call>
Call SystemCall(const char* name) {
  const auto call = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name);
  return reinterpret_cast<Call>(reinterpret_cast<void*>(call));
}

// A console without a window, whose screen comes through a pipe as a terminal gets it.
class HeadlessConsole {
 public:
  HeadlessConsole() {
    HANDLE consolesInput = nullptr;
    HANDLE consolesOutput = nullptr;
    CreatePipe(&consolesInput, &input_, nullptr, 0);
    CreatePipe(&output_, &consolesOutput, nullptr, 0);
    const auto create = SystemCall<CreateConsole>("CreatePseudoConsole");
    if (create == nullptr ||
        FAILED(create({200, 50}, consolesInput, consolesOutput, 0, &console_))) {
      console_ = nullptr;
    }
    CloseHandle(consolesInput);
    CloseHandle(consolesOutput);
    reader_ = std::thread([this] { ReadScreen(); });
  }
  ~HeadlessConsole() { Finish(); }
  HeadlessConsole(const HeadlessConsole&) = delete;
  HeadlessConsole& operator=(const HeadlessConsole&) = delete;

  bool IsThere() const { return console_ != nullptr; }

  // Runs a command line in it to its end; gives the exit code.
  DWORD Run(std::wstring line, const std::filesystem::path& folder) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    std::vector<char> room(size);
    STARTUPINFOEXW start = {};
    start.StartupInfo.cb = sizeof start;
    start.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(room.data());
    InitializeProcThreadAttributeList(start.lpAttributeList, 1, 0, &size);
    UpdateProcThreadAttribute(start.lpAttributeList, 0, kAttributeConsole, console_,
                              sizeof console_, nullptr, nullptr);
    PROCESS_INFORMATION process = {};
    EXPECT_NE(
        CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, EXTENDED_STARTUPINFO_PRESENT,
                       nullptr, folder.c_str(), &start.StartupInfo, &process),
        FALSE);
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 30'000), WAIT_OBJECT_0);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    DeleteProcThreadAttributeList(start.lpAttributeList);
    return code;
  }

  // What came to the screen, with the terminal's sequences in between.
  const std::string& Finish() {
    if (IsThere()) SystemCall<CloseConsole>("ClosePseudoConsole")(console_);
    console_ = nullptr;
    if (reader_.joinable()) {
      reader_.join();
      CloseHandle(input_);
      CloseHandle(output_);
    }
    return screen_;
  }

 private:
  void ReadScreen() {
    std::array<char, 4096> part = {};
    DWORD count = 0;
    while (ReadFile(output_, part.data(), part.size(), &count, nullptr) != FALSE && count > 0) {
      screen_.append(part.data(), count);
    }
  }

  HANDLE input_ = nullptr;
  HANDLE output_ = nullptr;
  void* console_ = nullptr;
  std::string screen_;
  std::thread reader_;
};

class Console : public CliTest {
 protected:
  // What the tool puts on the console that it is started from, with its standard output and its
  // standard error there.
  std::string Screen(const std::wstring& arguments) {
    HeadlessConsole console;
    if (!console.IsThere()) return "no console";
    const std::filesystem::path program = std::filesystem::absolute(ZDX_PROGRAM).make_preferred();
    console.Run(L"cmd.exe /c \"" + program.native() + L"\" " + arguments + L" >CONOUT$ 2>&1",
                Folder());
    return console.Finish();
  }
};

TEST_F(Console, ShowsCharactersOfAnyScript) {
  Write("\xD1\x87\xE5\x9B\xB3.dxf", DxfText());
  const std::string screen = Screen(L"info --select flavour \u0447\u56F3.dxf");
  if (screen == "no console") GTEST_SKIP() << "this system makes no consoles without a window";
  EXPECT_THAT(screen, HasSubstr("\xD1\x87\xE5\x9B\xB3.dxf"));
  EXPECT_THAT(screen, HasSubstr("DXF (text)"));
}

TEST_F(Console, ShowsMessagesInAnyScript) {
  const std::string screen = Screen(L"info \u0447.dxf");
  if (screen == "no console") GTEST_SKIP() << "this system makes no consoles without a window";
  EXPECT_THAT(screen, HasSubstr("zdx: \xD1\x87.dxf: Unable to find file"));
  EXPECT_THAT(screen, Not(HasSubstr("standard output")));
}

}  // namespace

}  // namespace zdx_test
