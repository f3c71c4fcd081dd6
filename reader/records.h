// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The job stream's records as plain values, as they are read back: nothing is checked here.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "printer/format/job_stream_format.h"

namespace gdi::reader {

// The planes of a page, in the order in which arrays of planes are indexed.
enum class Ink : std::uint8_t { kCyan, kMagenta, kYellow, kBlack };
inline constexpr std::size_t kInkCount = 4;
inline constexpr std::array<Ink, kInkCount> kInks{Ink::kCyan, Ink::kMagenta, Ink::kYellow,
                                                  Ink::kBlack};

inline constexpr std::size_t indexOf(Ink ink) {
  return static_cast<std::size_t>(ink);
}
// "cyan", "magenta", "yellow" or "black".
const char* nameOf(Ink ink);
// Where a band record has the length of that plane's band.
std::size_t lengthOffsetOf(Ink ink);

// Pixels have 1, 2 or 4 bits.
inline constexpr bool isBitsPerPixel(unsigned bits) {
  return bits == 1 || bits == 2 || bits == 4;
}

struct JobRecord {
  std::uint32_t length = 0;  // bytes, as the record says
  std::uint16_t copies = 0;
  std::uint16_t hostRecordLength = 0;  // bytes
  std::uint32_t packedDate = 0;
  std::uint8_t colorFlag = 0;  // written before the first page is known: tells nothing
  unsigned bitsPerPixel = 0;   // 1 to 256
  std::string name;            // at most 64 bytes
};

struct HostRecord {
  std::uint32_t length = 0;  // bytes, as the record says
  std::string hostName;      // at most 64 bytes
  std::string userName;      // at most 64 bytes
};

struct PageRecord {
  std::uint32_t length = 0;  // bytes, as the record says
  std::uint8_t mediaSize = 0;
  std::uint8_t inputTray = 0;
  std::uint8_t paperType = 0;
  std::uint16_t rowBits = 0;        // the low 16 bits of a row's bits, padding included
  std::uint16_t rowsModulo64K = 0;  // the low 16 bits of the page's rows
  std::uint8_t channels = 0;        // 1 = black only, 4 = colour
  std::uint16_t number = 0;         // from 0
  std::uint16_t bandCount = 0;
  std::uint32_t widthMicrometres = 0;
  std::uint32_t heightMicrometres = 0;
};

struct BandRecord {
  std::uint32_t flags = 0;
  std::array<std::uint32_t, kInkCount> lengths{};  // bytes of band data, indexed by indexOf(ink)
  std::uint16_t rowBits = 0;
  std::uint16_t rows = 0;
  bool pageBlank = false;

  // The plane whose length slot is used; none when none is, or more than one.
  [[nodiscard]] std::optional<Ink> ink() const;
  [[nodiscard]] bool first() const { return (flags & band_record::kFirstBandFlag) != 0; }
  [[nodiscard]] bool last() const { return (flags & band_record::kLastBandFlag) != 0; }
};

// Each requires: bytes.size() is the record's length of job_stream_format.h, tag included.
JobRecord parseJobRecord(std::span<const std::uint8_t> bytes);
HostRecord parseHostRecord(std::span<const std::uint8_t> bytes);
PageRecord parsePageRecord(std::span<const std::uint8_t> bytes);
BandRecord parseBandRecord(std::span<const std::uint8_t> bytes);

}  // namespace gdi::reader
