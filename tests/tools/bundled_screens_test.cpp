// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The screens that this build made, read back by a reader of their own formats.

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

struct Set {
  int depth = 0;
  std::vector<std::string> screens;
};

struct Screen {
  int width = 0, height = 0, inputDepth = 0, outputDepth = 0;
  std::vector<int> entries;  // ((row x width) + column) x 256 + level
};

std::string contentsOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Reads the list's elements in order: the only ones with text are keys, integers and strings.
std::map<std::string, Set> readSets() {
  const std::string text = contentsOf(std::filesystem::path(GDI_BUNDLE) / "ScreenSets.plist");
  std::map<std::string, Set> sets;
  Set* current = nullptr;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    const std::size_t nameEnd = text.find('>', at);
    const std::string name = text.substr(at + 1, nameEnd - at - 1);
    const std::string value = text.substr(nameEnd + 1, text.find('<', nameEnd) - nameEnd - 1);
    if (name == "key" && value != "ScreenSets" && value != "Depth" && value != "Screens") {
      const auto [place, isNew] = sets.try_emplace(value);
      EXPECT_TRUE(isNew) << value;
      current = &place->second;
    } else if (name == "integer" && current != nullptr) {
      current->depth = std::stoi(value);
    } else if (name == "string" && current != nullptr) {
      current->screens.push_back(value);
    }
  }
  return sets;
}

std::optional<Screen> readScreen(const std::string& name) {
  const std::string bytes = contentsOf(std::filesystem::path(GDI_BUNDLE) / "Screens" / name);
  const std::size_t zero = bytes.find('\0');
  Screen screen;
  int version = 0;
  if (zero > 1024) {
    return std::nullopt;
  }
  // NOLINTNEXTLINE(cert-err34-c): a number that is not read fails the comparison behind it
  if (std::sscanf(bytes.c_str(), "%d %d %d %d %d", &version, &screen.width, &screen.height,
                  &screen.inputDepth, &screen.outputDepth) != 5 ||
      version != 1) {
    return std::nullopt;
  }
  for (std::size_t at = zero + 1; at < bytes.size(); ++at) {
    const int byte = static_cast<unsigned char>(bytes[at]);
    for (int shift = 8 - screen.outputDepth; shift >= 0; shift -= screen.outputDepth) {
      screen.entries.push_back((byte >> shift) & ((1 << screen.outputDepth) - 1));
    }
  }
  return screen;
}

const std::array kQualities{"Fast", "Standard", "Fine"};
const std::array kPapers{"Thin",       "Plain",      "Plain90", "Recycled", "Color",
                         "Preprinted", "Prepunched", "Thick",   "Thick160", "Letterhead",
                         "Bond",       "Cardstock",  "Labels",  "Envelope"};

TEST(BundledScreens, ThereIsASetForEveryQualityPaperAndMode) {
  const std::map<std::string, Set> sets = readSets();
  EXPECT_EQ(sets.size(), 84U);
  int depth = 1;
  for (const char* quality : kQualities) {
    for (const char* paper : kPapers) {
      for (const char* mode : {"Color", "Mono"}) {
        std::string key = quality;
        key += paper;
        key += mode;
        const auto set = sets.find(key);
        ASSERT_NE(set, sets.end()) << key;
        EXPECT_EQ(set->second.depth, depth);
        EXPECT_EQ(set->second.screens.size(), 4U);
      }
    }
    depth *= 2;
  }
}

TEST(BundledScreens, TheFourPlanesOfAColourPageHaveScreensOfTheirOwn) {
  for (const auto& [key, set] : readSets()) {
    const std::set<std::string> names(set.screens.begin(), set.screens.end());
    EXPECT_EQ(names.size(), key.ends_with("Color") ? 4U : 1U) << key;
    std::set<std::string> contents;
    for (const std::string& name : names) {
      contents.insert(contentsOf(std::filesystem::path(GDI_BUNDLE) / "Screens" / name));
    }
    EXPECT_EQ(contents.size(), names.size()) << key;
  }
}

TEST(BundledScreens, TheFolderHoldsTheNamedFilesAndNoOthers) {
  std::set<std::string> named;
  for (const auto& [key, set] : readSets()) {
    named.insert(set.screens.begin(), set.screens.end());
  }
  std::set<std::string> there;
  std::uintmax_t size = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(GDI_BUNDLE) / "Screens")) {
    there.insert(entry.path().filename().string());
    EXPECT_GE(entry.file_size(), 12000U);
    EXPECT_LE(entry.file_size(), 150000U);
    size += entry.file_size();
  }
  EXPECT_EQ(there, named);
  EXPECT_LT(size, 4000000U);
}

TEST(BundledScreens, TheBundleHoldsItsListsScreensAndLanguagesAndNothingElse) {
  std::set<std::string> others;
  std::size_t languages = 0;
  for (const auto& entry : std::filesystem::directory_iterator(GDI_BUNDLE)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_directory() && name.ends_with(".lproj")) {
      ++languages;
    } else {
      others.insert(name);
    }
  }
  EXPECT_EQ(others, (std::set<std::string>{"Info.plist", "ScreenSets.plist", "Screens"}));
  EXPECT_GE(languages, 1U);
}

void checkScreen(const std::string& name, int depth) {
  const std::optional<Screen> screen = readScreen(name);
  ASSERT_TRUE(screen.has_value());
  ASSERT_EQ(screen->inputDepth, 8);
  ASSERT_EQ(screen->outputDepth, depth);
  ASSERT_GE(screen->width, 1);
  ASSERT_GE(screen->height, 1);
  const auto pixels =
      static_cast<std::size_t>(screen->width) * static_cast<std::size_t>(screen->height);
  ASSERT_EQ(screen->entries.size(), pixels * 256);
  std::array<long, 256> tones{};
  for (std::size_t pixel = 0; pixel < pixels; ++pixel) {
    const int* cell = &screen->entries[pixel * 256];
    ASSERT_EQ(cell[0], 0) << "pixel " << pixel;
    ASSERT_EQ(cell[255], (1 << depth) - 1) << "pixel " << pixel;
    for (std::size_t level = 0; level < 256; ++level) {
      ASSERT_TRUE(level == 0 || cell[level] >= cell[level - 1]) << pixel << " at " << level;
      tones.at(level) += cell[level];
    }
  }
  for (std::size_t level = 1; level < 256; ++level) {
    EXPECT_GT(tones.at(level), tones.at(level - 1)) << "level " << level;
  }
}

TEST(BundledScreens, EveryCellRisesFromBlankToSolidAndEveryLevelIsDarkerThanTheLast) {
  std::map<std::string, int> depths;
  for (const auto& [key, set] : readSets()) {
    for (const std::string& name : set.screens) {
      EXPECT_EQ(depths.try_emplace(name, set.depth).first->second, set.depth) << name;
    }
  }
  for (const auto& [name, depth] : depths) {
    SCOPED_TRACE(name);
    checkScreen(name, depth);
  }
}

}  // namespace
}  // namespace gdi
