// The exceptions with which a failed operation of the engine ends.
//
// Catch FileError for everything that concerns a file, ZdxEngineException for the whole tree.  The
// words stand in `errorMessage`; what() is the same for every class.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// The root of the tree.
class ZDXENGINE_API ZdxEngineException : public std::exception {
 public:
  ZdxEngineException();
  ZdxEngineException(const ZdxEngineException&);
  ZdxEngineException& operator=(const ZdxEngineException&);
  ~ZdxEngineException() override;

  // Always "Unknown exception", on every system.
  const char* what() const noexcept override;

  // The number of the class, as each class below tells.
  std::int32_t errorCode = 0;
  // The finished sentence, in the language of the engine's resources.
  std::wstring errorMessage;
};

// A failure that concerns one file.
class ZDXENGINE_API FileError : public ZdxEngineException {
 public:
  // Fills both fields: `code`, and the text of `resourceId` with `path` in its placeholder.
  FileError(const int& code, const int& resourceId, const std::wstring& path);
  FileError(const FileError&);
  FileError& operator=(const FileError&);
  ~FileError() override;
};

// 101: the file is there but can't be read.
class ZDXENGINE_API ReadError : public FileError {
 public:
  explicit ReadError(const std::wstring& path);
  ~ReadError() override;
};

// 102: there is no such file.
class ZDXENGINE_API NotFound : public FileError {
 public:
  explicit NotFound(const std::wstring& path);
  ~NotFound() override;
};

// 103: the file isn't a drawing.
class ZDXENGINE_API InvalidFormat : public FileError {
 public:
  explicit InvalidFormat(const std::wstring& path);
  ~InvalidFormat() override;
};

// 104: the drawing is encrypted, or its protection failed.
class ZDXENGINE_API SecurityError : public FileError {
 public:
  explicit SecurityError(const std::wstring& path);
  ~SecurityError() override;
};

// 105: the file can't be accessed.
class ZDXENGINE_API NoAccess : public FileError {
 public:
  explicit NoAccess(const std::wstring& path);
  ~NoAccess() override;
};

// 106: a digitally signed file isn't converted.
class ZDXENGINE_API NotConvertDigitalSigned : public FileError {
 public:
  explicit NotConvertDigitalSigned(const std::wstring& path);
  ~NotConvertDigitalSigned() override;
};

// 107: another process holds the file.
class ZDXENGINE_API SharingViolation : public FileError {
 public:
  explicit SharingViolation(const std::wstring& path);
  ~SharingViolation() override;
};

// 108: the file holds more than can be handled.
class ZDXENGINE_API DataTooLarge : public FileError {
 public:
  explicit DataTooLarge(const std::wstring& path);
  ~DataTooLarge() override;
};

// 109: conversion to another version failed; the resource names the version.
class ZDXENGINE_API ConversionToZENTFormatFailed : public FileError {
 public:
  ConversionToZENTFormatFailed(const int& resourceId, const std::wstring& path);
  ~ConversionToZENTFormatFailed() override;
};

// 110: the file can't be saved.
class ZDXENGINE_API SaveFileError : public FileError {
 public:
  explicit SaveFileError(const std::wstring& path);
  ~SaveFileError() override;
};

// 302: the header of the drawing isn't valid.
class ZDXENGINE_API BadDwgHeader : public FileError {
 public:
  explicit BadDwgHeader(const std::wstring& path);
  ~BadDwgHeader() override;
};

// 303: a vertical module failed to list its dependencies.
class ZDXENGINE_API GetVerticalDependenciesError : public FileError {
 public:
  explicit GetVerticalDependenciesError(const std::wstring& path);
  ~GetVerticalDependenciesError() override;
};

// 304: a vertical module failed to update its dependencies.
class ZDXENGINE_API UpdateVerticalDependenciesError : public FileError {
 public:
  explicit UpdateVerticalDependenciesError(const std::wstring& path);
  ~UpdateVerticalDependenciesError() override;
};

}  // namespace ZDXEngine
