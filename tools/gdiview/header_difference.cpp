// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/header_difference.h"

#include <algorithm>
#include <array>

#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

std::string explained(const Field& field) {
  std::string text = valueText(field);
  if (!field.meaning.empty()) {
    text.append(" (").append(field.meaning).append(")");
  }
  return text;
}

void addZeroFields(std::span<const ZeroField> fields, std::span<const std::uint8_t> a,
                   std::span<const std::uint8_t> b, std::vector<HeaderDifference>& differences) {
  for (const ZeroField& field : fields) {
    for (std::size_t at = field.offset; at < field.offset + field.bytes; ++at) {
      if (a[at] != b[at]) {
        differences.push_back({"byte " + std::to_string(at), std::to_string(unsigned{a[at]}),
                               std::to_string(unsigned{b[at]})});
      }
    }
  }
}

// Where the text fields of a kind of record stand, in the order of their fields.
std::span<const std::size_t> textOffsetsOf(reader::RecordKind kind) {
  static constexpr std::array kOfJob{job_record::kJobNameOffset};
  static constexpr std::array kOfHost{host_record::kHostNameOffset, host_record::kUserNameOffset};
  switch (kind) {
    case reader::RecordKind::kJob:
      return kOfJob;
    case reader::RecordKind::kHost:
      return kOfHost;
    default:
      return {};
  }
}

// What is behind the end of two equal texts.
void addPadding(const Field& field, std::size_t offset, std::span<const std::uint8_t> a,
                std::span<const std::uint8_t> b, std::vector<HeaderDifference>& differences) {
  for (std::size_t at = offset; at < offset + kTextBytes; ++at) {
    if (a[at] != b[at]) {
      const std::string place = " at byte " + std::to_string(at);
      differences.push_back({field.name, std::to_string(unsigned{a[at]}) + place,
                             std::to_string(unsigned{b[at]}) + place});
      return;
    }
  }
}

std::span<const ZeroField> zeroFieldsOf(reader::RecordKind kind) {
  switch (kind) {
    case reader::RecordKind::kJob:
      return job_record::kZeroFields;
    case reader::RecordKind::kHost:
      return host_record::kZeroFields;
    case reader::RecordKind::kPage:
      return page_record::kZeroFields;
    case reader::RecordKind::kBand:
      return band_record::kZeroFields;
    case reader::RecordKind::kEndOfJob:
      break;
  }
  return {};
}

}  // namespace

std::vector<HeaderDifference> differenceOfHeaders(reader::RecordKind kind,
                                                  std::span<const std::uint8_t> a,
                                                  std::span<const std::uint8_t> b) {
  std::vector<HeaderDifference> differences;
  const std::vector<Field> fieldsOfA = fieldsOf(kind, a);
  const std::vector<Field> fieldsOfB = fieldsOf(kind, b);
  auto textOffset = textOffsetsOf(kind).begin();
  for (std::size_t i = 0; i < fieldsOfA.size(); ++i) {
    const Field& field = fieldsOfA[i];
    const bool isText = std::holds_alternative<std::string>(field.value);
    if (field.value != fieldsOfB[i].value) {
      differences.push_back({field.name, explained(field), explained(fieldsOfB[i])});
    } else if (isText) {
      addPadding(field, *textOffset, a, b, differences);
    }
    textOffset += isText ? 1 : 0;
  }
  addZeroFields(zeroFieldsOf(kind), a, b, differences);
  return differences;
}

// A byte belongs to the field that differs when the byte does.
std::vector<bool> bytesOfFields(reader::RecordKind kind, std::span<const std::string> names) {
  const std::vector<std::uint8_t> zeros(reader::lengthOf(kind));
  std::vector<bool> belong(zeros.size());
  for (std::size_t at = 0; at < zeros.size() && !names.empty(); ++at) {
    std::vector<std::uint8_t> other = zeros;
    other[at] = 1;
    for (const HeaderDifference& difference : differenceOfHeaders(kind, zeros, other)) {
      belong[at] = belong[at] || std::ranges::count(names, difference.name) != 0;
    }
  }
  return belong;
}

}  // namespace gdi::gdiview
