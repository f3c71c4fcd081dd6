// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/header_difference.h"

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
  for (std::size_t i = 0; i < fieldsOfA.size(); ++i) {
    if (fieldsOfA[i].value != fieldsOfB[i].value) {
      differences.push_back({fieldsOfA[i].name, explained(fieldsOfA[i]), explained(fieldsOfB[i])});
    }
  }
  addZeroFields(zeroFieldsOf(kind), a, b, differences);
  return differences;
}

}  // namespace gdi::gdiview
