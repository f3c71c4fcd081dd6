// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A record's fields one by one: what each is called, what it holds and what that means.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "reader/record_start.h"
#include "tools/gdiview/escaped_text.h"

namespace gdi::gdiview {

struct Field {
  std::string name;  // lower case with underscores, as JSON and `diff --ignore` have it
  std::variant<std::uint64_t, std::string> value;
  std::string unit = {};     // possibly none
  std::string meaning = {};  // of this value; possibly none
  std::string remark = {};   // on every value of the field; possibly none
};

// The fields in the order in which they stand in the record; none of an end-of-job mark. Bytes that
// are always zero are no field. Texts are the field's bytes, whatever they are.
// requires: header.size() is lengthOf(kind)
std::vector<Field> fieldsOf(reader::RecordKind kind, std::span<const std::uint8_t> header);

// "210.1"; with three digits behind the point below one millimetre, so that no length is "0.0".
std::string millimetres(std::uint32_t micrometres);
// "2026-11-15 21:54:36"
std::string dateText(std::uint32_t packedDate);
// "Fast", "Standard", "Fine" or nothing.
std::string qualityName(unsigned bitsPerPixel);
// "A4"; "custom" or "unknown" for a size without a name.
std::string mediaName(std::uint8_t code);
// The value of one of fieldsOf() by its name, as valueText() has it.
std::string fieldText(reader::RecordKind kind, std::span<const std::uint8_t> header,
                      std::string_view name);
// The value as text: a number, or the text as quoted() has it.
std::string valueText(const Field& field);

}  // namespace gdi::gdiview
