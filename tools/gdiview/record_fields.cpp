// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/record_fields.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "printer/format/big_endian.h"
#include "printer/format/option_code_tables.h"
#include "printer/format/solvane_date.h"
#include "reader/records.h"

namespace gdi::gdiview {

namespace {

using Bytes = std::span<const std::uint8_t>;

template <typename... Values>
std::string formatted(const char* format, Values... values) {
  std::array<char, 64> text{};
  (void)std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

std::string codeName(std::span<const NamedCode> table, std::uint8_t code) {
  return std::string(nameOfCode(table, code).value_or("unknown"));
}

std::string inMillimetres(std::uint32_t micrometres) {
  return millimetres(micrometres) + " mm";
}

Field constantAt(Bytes header, std::size_t offset) {
  return {"constant_" + std::to_string(offset), std::uint64_t{header[offset]}};
}

std::vector<Field> jobFields(Bytes header) {
  const reader::JobRecord record = reader::parseJobRecord(header);
  return {
      {"length", record.length, "bytes"},
      {"constant_8", bigEndian16(header, job_record::kConstant100Offset)},
      {"copies", record.copies},
      {"host_record_length", record.hostRecordLength, "bytes"},
      {"date", record.packedDate, "", dateText(record.packedDate)},
      {"color_flag", record.colorFlag, "", "", "tells nothing: 0 in colour jobs too"},
      constantAt(header, job_record::kConstant1Offset),
      {"bits_per_pixel", record.bitsPerPixel, "", qualityName(record.bitsPerPixel)},
      constantAt(header, job_record::kConstant0Offset),
      constantAt(header, job_record::kConstant2Offset),
      {"name", record.name},
  };
}

std::vector<Field> hostFields(Bytes header) {
  const reader::HostRecord record = reader::parseHostRecord(header);
  return {
      {"length", record.length, "bytes"},
      {"host", record.hostName},
      {"user", record.userName},
  };
}

std::vector<Field> pageFields(Bytes header) {
  const reader::PageRecord record = reader::parsePageRecord(header);
  return {
      {"length", record.length, "bytes"},
      {"media_size", record.mediaSize, "", mediaName(record.mediaSize)},
      {"input_tray", record.inputTray, "", codeName(kInputTrays, record.inputTray)},
      {"paper_type", record.paperType, "", codeName(kPaperTypes, record.paperType)},
      {"row_bits", record.rowBits, "", "", "the low 16 bits of a row's bits, padding included"},
      {"rows", record.rowsModulo64K, "", "", "the low 16 bits"},
      {"planes", record.channels, "",
       record.channels == 1                   ? "black"
       : record.channels == reader::kInkCount ? "CMYK"
                                              : ""},
      constantAt(header, page_record::kConstant1Offset),
      {"number", record.number, "", "", "from 0"},
      {"bands", record.bandCount, "", "", "a plane, sometimes one too many"},
      {"page_width", record.widthMicrometres, "µm", inMillimetres(record.widthMicrometres)},
      {"page_length", record.heightMicrometres, "µm", inMillimetres(record.heightMicrometres)},
  };
}

std::vector<Field> bandFields(Bytes header) {
  const reader::BandRecord record = reader::parseBandRecord(header);
  std::string flags = record.first() ? "first of its plane" : "";
  if (record.last()) {
    flags.append(record.first() ? ", " : "").append("last of the page");
  }
  const auto length = [&record](reader::Ink ink) { return record.lengths[reader::indexOf(ink)]; };
  return {
      {"flags", record.flags, "", flags},
      {"black_bytes", length(reader::Ink::kBlack), "bytes"},
      {"yellow_bytes", length(reader::Ink::kYellow), "bytes"},
      {"magenta_bytes", length(reader::Ink::kMagenta), "bytes"},
      {"cyan_bytes", length(reader::Ink::kCyan), "bytes"},
      {"row_bits", record.rowBits, "", "", "the low 16 bits"},
      {"rows", record.rows},
      {"page_blank", header[band_record::kBlankPageOffset], "",
       record.pageBlank ? "the page is blank" : ""},
  };
}

}  // namespace

std::vector<Field> fieldsOf(reader::RecordKind kind, Bytes header) {
  switch (kind) {
    case reader::RecordKind::kJob:
      return jobFields(header);
    case reader::RecordKind::kHost:
      return hostFields(header);
    case reader::RecordKind::kPage:
      return pageFields(header);
    case reader::RecordKind::kBand:
      return bandFields(header);
    case reader::RecordKind::kEndOfJob:
      break;
  }
  return {};
}

std::string millimetres(std::uint32_t micrometres) {
  constexpr std::uint32_t kMillimetre = 1000;
  if (micrometres == 0) {
    return "0";
  }
  return formatted(micrometres < kMillimetre ? "%.3f" : "%.1f", micrometres / 1000.0);
}

std::string dateText(std::uint32_t packedDate) {
  const NSCalendarDate date = dateWithSolvane(packedDate);
  return formatted("%04d-%02d-%02d %02d:%02d:%02d", date.year, date.month, date.day, date.hour,
                   date.minute, date.second);
}

std::string qualityName(unsigned bitsPerPixel) {
  switch (bitsPerPixel) {
    case 1:
      return "Fast";
    case 2:
      return "Standard";
    case 4:
      return "Fine";
    default:
      return "";
  }
}

std::string mediaName(std::uint8_t code) {
  return code == kCustomMedia ? "custom" : codeName(kMediaSizes, code);
}

std::string fieldText(reader::RecordKind kind, Bytes header, std::string_view name) {
  for (const Field& field : fieldsOf(kind, header)) {
    if (field.name == name) {
      return valueText(field);
    }
  }
  return "";
}

std::string valueText(const Field& field) {
  if (const auto* number = std::get_if<std::uint64_t>(&field.value)) {
    return std::to_string(*number);
  }
  const auto& text = std::get<std::string>(field.value);
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  return quoted(bytes);
}

}  // namespace gdi::gdiview
