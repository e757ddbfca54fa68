// How the system hands names of files to a program, and takes them back.
//
// As bytes they have the form that ZDXEngine::BytesFromWide gives, as wide texts that of
// ZDXEngine::WideFromUtf8: any name makes the trip both ways.
#pragma once

#include <string>
#include <vector>

namespace zdx {

// What stands behind the program's name on the command line.  Takes what main was given, which
// Windows cuts down to the characters of one code page: there the system is asked anew.
std::vector<std::string> ProgramArguments(int count, const char* const* arguments);

// The files that an argument stands for.  Where shells leave patterns alone, on Windows, `*` in the
// last part of `name` stands for any characters and `?` for one; the files that match come in the
// order of their names, whatever their case.  Folders don't match.  A name without a pattern, and
// one that nothing matches, stands for itself.
std::vector<std::string> FilesMeantBy(const std::string& name);

// The name under which the system's calls take the file `path`: `path` itself, unless it is too
// long for them as it stands, which happens on Windows alone.
std::wstring CallablePath(const std::wstring& path);

}  // namespace zdx
