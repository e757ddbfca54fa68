// The words that keys are made of, and what is said of them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "PropertyGroups.h"
#include "Selection.h"

namespace zdx {

// A key of all things of a kind.
struct ListKey {
  std::wstring_view key;
  const wchar_t* name;
  Selection selection;
};

std::span<const ListKey> ListKeys();

// Keys "prefix:NAME" for the names of a group.
struct GroupKey {
  std::wstring_view prefix;
  PropertyGroup group;
  Selection selection;
  // Of the properties' names, what keys leave out.
  std::wstring_view leftOut;
};

std::span<const GroupKey> GroupKeys();

// What may stand behind the prefix, as "Menu, ProjectName, ...".
std::wstring GroupNames(const GroupKey& group);

// A sentence about a word that isn't a key, with the forms of those that are.
std::wstring NoSuchKey(std::wstring_view word);

// The forms of all keys for a person, UTF-8, in lines that end in a line end.
std::string KeyForms();

}  // namespace zdx
