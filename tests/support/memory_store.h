// The settings key in memory, as its text.
//
//   CMemoryStore store("\"Grid\"=dword:00000000\n");  // lines of the key
//   store.readOnly = true;
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/registry_text.h"
#include "settings/settings_store.h"

namespace orbisol {

struct CMemoryStore : SettingsStore {
  std::optional<std::string> text;  // nothing if there is no key
  bool readOnly = false;
  bool isUnsure = false;             // whether the next write is made but not confirmed, and none follows
  std::vector<StoreChange> written;  // all changes ever asked for, in order

  CMemoryStore() = default;
  explicit CMemoryStore(std::string_view lines)
      : text("[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n" + std::string(lines)) {}

  std::optional<StoredValues> Read() const override {
    if (!text) return std::nullopt;
    return CRegistryText(*text).Values();
  }

  bool Write(const std::vector<StoreChange>& changes) override {
    if (!text || readOnly) return false;
    CRegistryText edited(*text);
    for (const StoreChange& change : changes) {
      written.push_back(change);
      if (!change.value)
        edited.Delete(change.name);
      else if (!edited.Set(change.name, *change.value))
        return false;
    }
    text = edited.Bytes();
    readOnly = isUnsure;
    return !isUnsure;
  }
};

}  // namespace orbisol
