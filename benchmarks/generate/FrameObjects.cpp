#include "generate/Frame.h"
#include "generate/Tokens.h"

namespace bench {
namespace {

constexpr int kGroups = 40;
constexpr int kRecords = 300;
constexpr std::uint64_t kRoot = 0xC;

}  // namespace

std::uint64_t Frame::Entry(Entries& entries, std::string name) {
  entries.emplace_back(std::move(name), NextHandle());
  return entries.back().second;
}

void Frame::BeginObject(const char* type, std::uint64_t handle, std::uint64_t owner) {
  out_.Text(0, type);
  out_.Handle(5, handle);
  out_.Text(102, kReactorGroup);
  out_.Handle(330, owner);
  out_.Text(102, "}");
  out_.Handle(330, owner);
}

void Frame::WriteDictionary(std::uint64_t handle, std::uint64_t owner, const Entries& entries) {
  BeginObject("DICTIONARY", handle, owner);
  out_.Text(100, kDictionaryMarker);
  out_.Integer(281, 1);
  for (const auto& [name, entry] : entries) {
    out_.Text(3, name);
    out_.Handle(350, entry);
  }
}

void Frame::WriteObjects() {
  BeginSection("OBJECTS");
  Entries root;
  const std::uint64_t groups = Entry(root, kGroupKey);
  const std::uint64_t layouts = Entry(root, kLayoutKey);
  const std::uint64_t styles = Entry(root, kMlineStyleKey);
  const std::uint64_t setups = Entry(root, kPlotSettingsKey);
  for (int i = 0; i < kRecords; ++i) Entry(root, "APP_RECORD_" + std::to_string(i));
  for (const auto& entry : root) Expect("Named Object Name", entry.first);
  generated_.counts.namedObjects = root.size();
  WriteDictionary(kRoot, 0, root);

  WriteGroups(groups, kRoot);
  WriteLayouts(layouts, kRoot);
  Entries styleEntries;
  const std::uint64_t style = Entry(styleEntries, "Standard");
  WriteDictionary(styles, kRoot, styleEntries);
  BeginObject("MLINESTYLE", style, styles);
  out_.Text(100, kMlineStyleMarker);
  out_.Text(2, "Standard");
  Expect("MultiLine Style Name", "Standard");

  Entries setupEntries;
  const std::uint64_t setup = Entry(setupEntries, "Final");
  WriteDictionary(setups, kRoot, setupEntries);
  BeginObject("PLOTSETTINGS", setup, setups);
  WritePlotSettings("Final");
  Expect("Plot Settings Name", "Final");

  for (std::size_t i = root.size() - kRecords; i < root.size(); ++i) {
    BeginObject("XRECORD", root[i].second, kRoot);
    out_.Text(100, kXrecordMarker);
    out_.Integer(280, 1);
    out_.Text(1, "Contents of " + root[i].first);
  }
  EndSection();
}

void Frame::WriteGroups(std::uint64_t dictionary, std::uint64_t root) {
  Entries entries;
  for (int i = 0; i < kGroups; ++i) {
    Entry(entries, "GROUP_" + std::to_string(i));
    Expect("Group Name", entries.back().first);
  }
  WriteDictionary(dictionary, root, entries);
  for (const auto& entry : entries) {
    BeginObject("GROUP", entry.second, dictionary);
    out_.Text(100, kGroupMarker);
    out_.Text(300, "");
    out_.Integer(70, 0);
    out_.Integer(71, 1);
  }
}

void Frame::WriteLayouts(std::uint64_t dictionary, std::uint64_t root) {
  Entries entries;
  for (const char* name : {"Model", "Sheet 1"}) {
    Entry(entries, name);
    Expect("Layout Name", name);
  }
  WriteDictionary(dictionary, root, entries);
  for (std::size_t tab = 0; tab < entries.size(); ++tab) {
    BeginObject("LAYOUT", entries[tab].second, dictionary);
    WritePlotSettings("");
    out_.Text(100, kLayoutMarker);
    out_.Text(1, entries[tab].first);
    out_.Integer(70, 1);
    out_.Integer(71, static_cast<int>(tab));
    out_.Handle(330, kModelSpace + tab);
  }
}

void Frame::WritePlotSettings(const std::string& pageSetup) {
  out_.Text(100, kPlotSettingsMarker);
  out_.Text(1, pageSetup);
  out_.Text(2, "none_device");
  out_.Text(4, "A3");
  out_.Text(6, "");
  out_.Text(7, "office.ctb");
}

}  // namespace bench
