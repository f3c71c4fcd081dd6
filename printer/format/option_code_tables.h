// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The printer's own one-byte numbers for paper types, input trays and media sizes, with the names
// that a job's options give them. The numbers are not contiguous.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace gdi {

struct NamedCode {
  std::string_view name;
  std::uint8_t code;
};

inline constexpr std::uint8_t kPlainPaper = 1;
inline constexpr std::uint8_t kThinPaper = 15;
inline constexpr std::array<NamedCode, 14> kPaperTypes{{{"Thin", kThinPaper},
                                                        {"Plain", kPlainPaper},
                                                        {"Plain90", 16},
                                                        {"Recycled", 2},
                                                        {"Color", 3},
                                                        {"Preprinted", 5},
                                                        {"Prepunched", 6},
                                                        {"Thick", 12},
                                                        {"Thick160", 13},
                                                        {"Letterhead", 4},
                                                        {"Bond", 8},
                                                        {"Cardstock", 9},
                                                        {"Labels", 7},
                                                        {"Envelope", 14}}};

inline constexpr std::uint8_t kAutomaticTray = 0;
inline constexpr std::array<NamedCode, 6> kInputTrays{{{"Automatic", kAutomaticTray},
                                                       {"Manual", 1},
                                                       {"Tray1", 2},
                                                       {"Tray2", 3},
                                                       {"Tray3", 4},
                                                       {"Tray4", 5}}};

inline constexpr std::uint8_t kLetter = 1;         // also where no size is named
inline constexpr std::uint8_t kCustomMedia = 255;  // any size without a code of its own
inline constexpr std::array<NamedCode, 24> kMediaSizes{
    {{"Ledger", 17}, {"Legal", 5},    {"Letter", kLetter}, {"Executive", 7}, {"HalfLetter", 6},
     {"A3", 8},      {"A4", 9},       {"A5", 11},          {"A6", 70},       {"B4", 12},
     {"JISB5", 13},  {"B6", 88},      {"FS", 16},          {"Folio", 15},    {"Foolscap", 14},
     {"Env10", 20},  {"Monarch", 37}, {"EnvDL", 27},       {"EnvC5", 28},    {"EnvC6", 31},
     {"Kai8", 92},   {"Kai16", 93},   {"Postcard", 43},    {"ReplyPaid", 69}}};

inline std::optional<std::uint8_t> codeOf(std::span<const NamedCode> table, std::string_view name) {
  const auto entry = std::ranges::find(table, name, &NamedCode::name);
  return entry == table.end() ? std::nullopt : std::optional(entry->code);
}

inline std::optional<std::string_view> nameOfCode(std::span<const NamedCode> table,
                                                  std::uint8_t code) {
  const auto entry = std::ranges::find(table, code, &NamedCode::code);
  return entry == table.end() ? std::nullopt : std::optional(entry->name);
}

}  // namespace gdi
