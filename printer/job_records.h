// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The records that frame a job: plain values in, the record's bytes out.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "printer/format/job_stream_format.h"

namespace gdi {

struct JobRecordFields {
  std::uint16_t copies = 0;
  std::uint32_t date = 0;  // Solvane packed date
  bool color = false;
  std::uint8_t bitsPerPixel = 1;  // of a plane
  std::string_view jobName;       // cut to 64 bytes
};

struct PageRecordFields {
  std::uint8_t mediaSize = 0;
  std::uint8_t inputTray = 0;
  std::uint8_t paperType = 0;
  std::uint16_t rowBits = 0;  // padded bits a plane row
  std::uint16_t rows = 0;
  std::uint8_t channels = 0;
  std::uint16_t pageNumber = 0;  // from 0
  std::uint16_t bandCount = 0;
  std::uint32_t width = 0;  // micrometres
  std::uint32_t height = 0;
};

std::array<std::uint8_t, job_record::kLength> jobRecord(const JobRecordFields& fields);
std::array<std::uint8_t, host_record::kLength> hostRecord(std::string_view hostName,
                                                          std::string_view userName);
std::array<std::uint8_t, page_record::kLength> pageRecord(const PageRecordFields& fields);

// The job's name: the title, or of a title "@NAME(..." the NAME between the "@" and the first "(".
// A title that begins with "@" and has no "(" gives all that follows the "@".
std::string_view jobNameOfTitle(std::string_view title);

// PostScript points to micrometres, truncated: docs/quirks.md, "Sizes go through single precision".
std::uint32_t micrometresOfPoints(std::uint32_t points);

// This host's name; "localhost" when the system has none. `query` is the system's gethostname.
std::string hostName(int (*query)(char*, std::size_t));

// The bytes of the job's prologue that are sent: as many as the text has UTF-16 units, so that a
// text beyond ASCII is cut short: docs/quirks.md, "The prologue is counted in UTF-16 units".
// Valid as long as the text.
std::span<const std::uint8_t> prologueBytes(std::string_view utf8);

}  // namespace gdi
