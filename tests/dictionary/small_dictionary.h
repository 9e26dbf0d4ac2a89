#pragma once

#include "dictionary_loader.h"

// A dictionary of two tiers that has one of everything: radio, channels with identities that refer to networks by
// number, scan groups with members (a child structure), systems with two flat slots and three fixed bursts each.
namespace SmallDictionary {
[[nodiscard]] std::vector<DictionaryFile> files();
// With the first place `from` in a file replaced; no files at all when there is none.
[[nodiscard]] std::vector<DictionaryFile> filesWith(const QString &file, const QByteArray &from, const QByteArray &to);
[[nodiscard]] std::unique_ptr<const Dictionary> make();
} // namespace SmallDictionary
