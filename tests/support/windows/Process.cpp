#include "support/Process.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "ZDXEngine/Utf8.h"
#include "support/Paths.h"

namespace zdx_test {

namespace {

using ZDXEngine::WideFromUtf8;

// The exit codes from here on are those of exceptions that nobody handled.
constexpr DWORD kFirstException = 0x80000000;
// With which the runtime's abort ends.
constexpr DWORD kAborted = 3;

void Check(bool done, const char* what) {
  if (done) return;
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

// A handle that is closed at the end.
class Handle {
 public:
  Handle(HANDLE handle, const char* what) : handle_(handle) {
    Check(handle != nullptr && handle != INVALID_HANDLE_VALUE, what);
  }
  ~Handle() { CloseHandle(handle_); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

// That of a handle that the program gets.
SECURITY_ATTRIBUTES* Inherited() {
  static SECURITY_ATTRIBUTES attributes = {sizeof attributes, nullptr, TRUE};
  return &attributes;
}

std::filesystem::path FreshName() {
  std::array<wchar_t, MAX_PATH> name = {};
  Check(
      GetTempFileNameW(std::filesystem::temp_directory_path().c_str(), L"zdx", 0, name.data()) != 0,
      "temporary file");
  return name.data();
}

// A file that takes what the program writes, and goes away with its handle.
class Capture {
 public:
  Capture()
      : file_(CreateFileW(FreshName().c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, Inherited(),
                          CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE,
                          nullptr),
              "temporary file") {}

  HANDLE Get() const { return file_.Get(); }

  std::string Text() const {
    std::string text;
    std::array<char, 4096> part = {};
    DWORD count = 0;
    SetFilePointer(file_.Get(), 0, nullptr, FILE_BEGIN);
    while (ReadFile(file_.Get(), part.data(), part.size(), &count, nullptr) != 0 && count > 0) {
      text.append(part.data(), count);
    }
    return text;
  }

 private:
  Handle file_;
};

// The writing end of a pipe whose reading end is closed.
HANDLE UnreadPipe() {
  HANDLE reading = nullptr;
  HANDLE writing = nullptr;
  Check(CreatePipe(&reading, &writing, Inherited(), 0) != 0, "pipe");
  CloseHandle(reading);
  return writing;
}

HANDLE ReadOnlyFile() {
  return CreateFileW(ThisProgram().c_str(), GENERIC_READ, FILE_SHARE_READ, Inherited(),
                     OPEN_EXISTING, 0, nullptr);
}

// As the C runtime of every program takes its command line apart again.
std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t unit : argument) {
    if (unit == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = unit == L'\\' ? backslashes + 1 : 0;
    quoted += unit;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring CommandLine(const Command& command) {
  std::wstring line = Quoted(command.program.native());
  for (const std::string& argument : command.arguments) {
    line += L' ' + Quoted(WideFromUtf8(argument));
  }
  return line;
}

bool HasName(std::wstring_view variable, std::wstring_view other) {
  const std::wstring_view name = other.substr(0, other.find(L'=', 1) + 1);
  return CompareStringOrdinal(variable.substr(0, name.size()).data(),
                              static_cast<int>(std::min(name.size(), variable.size())), name.data(),
                              static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

// The test's environment with `changes` in place of the variables of the same names.
std::wstring Environment(const std::vector<std::string>& changes) {
  std::vector<std::wstring> variables;
  for (const std::string& change : changes) variables.push_back(WideFromUtf8(change));
  wchar_t* const own = GetEnvironmentStringsW();
  for (const wchar_t* at = own; *at != L'\0'; at += std::wstring_view(at).size() + 1) {
    const bool isChanged = std::any_of(
        variables.begin(), variables.begin() + static_cast<std::ptrdiff_t>(changes.size()),
        [&](const std::wstring& change) { return HasName(at, change); });
    if (!isChanged) variables.emplace_back(at);
  }
  FreeEnvironmentStringsW(own);
  std::wstring block;
  for (const std::wstring& variable : variables) block += variable + L'\0';
  return block + L'\0';
}

PROCESS_INFORMATION Start(const Command& command, HANDLE out, HANDLE err) {
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  start.hStdOutput = out;
  start.hStdError = err;
  std::wstring line = CommandLine(command);
  std::wstring environment = Environment(command.environment);
  PROCESS_INFORMATION process = {};
  const wchar_t* const folder =
      command.workingFolder.empty() ? nullptr : command.workingFolder.c_str();
  Check(
      CreateProcessW(command.program.c_str(), line.data(), nullptr, nullptr, TRUE,
                     CREATE_UNICODE_ENVIRONMENT, environment.data(), folder, &start, &process) != 0,
      "CreateProcessW");
  return process;
}

std::string Hexadecimal(DWORD code) {
  std::array<char, 16> text = {};
  std::snprintf(text.data(), text.size(), "0x%08lX", code);
  return text.data();
}

}  // namespace

bool CanRun(const std::filesystem::path& program) {
  DWORD type = 0;
  return GetBinaryTypeW(program.c_str(), &type) != FALSE;
}

Outcome RunCommand(const Command& command) {
  const Capture out;
  const Capture err;
  const Handle unread(UnreadPipe(), "pipe");
  const Handle readOnly(ReadOnlyFile(), "file");
  const HANDLE outputs[] = {out.Get(), nullptr, unread.Get(), readOnly.Get()};
  const PROCESS_INFORMATION started =
      Start(command, outputs[static_cast<std::size_t>(command.output)], err.Get());
  const Handle process(started.hProcess, "process");
  const Handle thread(started.hThread, "thread");
  const auto limit = std::chrono::milliseconds(command.limit);
  Outcome outcome;
  if (WaitForSingleObject(process.Get(), static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0) {
    outcome.endedBy = "its limit";
    TerminateProcess(process.Get(), 1);
    WaitForSingleObject(process.Get(), INFINITE);
  }
  DWORD code = 0;
  Check(GetExitCodeProcess(process.Get(), &code) != 0, "exit code");
  if (code >= kFirstException) outcome.endedBy = "exception " + Hexadecimal(code);
  if (code == kAborted) outcome.endedBy = "abort";
  if (outcome.endedBy.empty()) outcome.exitCode = static_cast<int>(code);
  outcome.out = out.Text();
  outcome.err = err.Text();
  return outcome;
}

std::filesystem::path ThisProgram() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

std::size_t CountOpenFiles() {
  DWORD count = 0;
  Check(GetProcessHandleCount(GetCurrentProcess(), &count) != 0, "handles");
  return count;
}

std::string EnvironmentVariable(const std::string& name) {
  const std::wstring wide = WideFromUtf8(name);
  std::wstring value(GetEnvironmentVariableW(wide.c_str(), nullptr, 0), L'\0');
  value.resize(
      GetEnvironmentVariableW(wide.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return ZDXEngine::BytesFromWide(value);
}

}  // namespace zdx_test
