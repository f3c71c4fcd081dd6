// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/docs/JsonSchema.h"

#include <algorithm>

namespace gdi::test {

namespace {

using Json = nlohmann::json;

bool isOfType(const Json& value, const std::string& type) {
  return (type == "object" && value.is_object()) || (type == "array" && value.is_array()) ||
         (type == "string" && value.is_string()) || (type == "boolean" && value.is_boolean()) ||
         (type == "integer" && value.is_number_integer());
}

std::string unless(bool valid, const std::string& place, const std::string& fault) {
  return valid ? "" : (place.empty() ? "the document" : place) + " " + fault;
}

}  // namespace

std::string JsonSchema::faultOf(const Json& value, const Json& schema,
                                const std::string& place) const {
  for (const auto& entry : schema.items()) {
    std::string fault = faultOfKeyword(value, schema, entry.key(), place);
    if (!fault.empty()) {
      return fault;
    }
  }
  return "";
}

std::string JsonSchema::faultOfKeyword(const Json& value, const Json& schema,
                                       const std::string& keyword, const std::string& place) const {
  const Json& rule = schema[keyword];
  if (keyword == "$schema" || keyword == "$defs" || keyword == "title" ||
      keyword == "description") {
    return "";
  }
  if (keyword == "$ref") {
    return faultOf(value, root_.at(Json::json_pointer(rule.get<std::string>().substr(1))), place);
  }
  if (keyword == "type") {
    return unless(isOfType(value, rule), place, "is no " + rule.dump());
  }
  if (keyword == "const") {
    return unless(value == rule, place, "is not " + rule.dump());
  }
  if (keyword == "enum") {
    return unless(std::ranges::count(rule, value) == 1, place, "is none of " + rule.dump());
  }
  if (keyword == "minimum") {
    return unless(!value.is_number() || value >= rule, place, "is less than " + rule.dump());
  }
  if (keyword == "required") {
    const auto missing = std::ranges::find_if(
        rule, [&value](const Json& name) { return !value.contains(name.get<std::string>()); });
    return missing == rule.end() ? "" : unless(false, place, "lacks " + missing->dump());
  }
  if (keyword == "properties" || (keyword == "additionalProperties" && rule == false)) {
    return faultOfMembers(value, schema, place);
  }
  if (keyword == "oneOf") {
    return faultOfAlternatives(value, rule, place);
  }
  if (keyword == "items") {
    for (std::size_t i = 0; value.is_array() && i < value.size(); ++i) {
      std::string fault = faultOf(value[i], rule, place + "/" + std::to_string(i));
      if (!fault.empty()) {
        return fault;
      }
    }
    return "";
  }
  return "the schema has an unknown keyword: " + keyword;
}

std::string JsonSchema::faultOfMembers(const Json& value, const Json& schema,
                                       const std::string& place) const {
  if (!value.is_object()) {
    return "";
  }
  for (const auto& [name, member] : value.items()) {
    const auto property = schema["properties"].find(name);
    std::string fault =
        property == schema["properties"].end()
            ? unless(schema.value("additionalProperties", true), place, "has a key " + name)
            : faultOf(member, *property, place + "/" + name);
    if (!fault.empty()) {
      return fault;
    }
  }
  return "";
}

std::string JsonSchema::faultOfAlternatives(const Json& value, const Json& alternatives,
                                            const std::string& place) const {
  std::string faults;
  std::size_t valid = 0;
  for (const Json& alternative : alternatives) {
    const std::string fault = faultOf(value, alternative, place);
    valid += fault.empty() ? 1 : 0;
    faults += "; " + fault;
  }
  return unless(
      valid == 1, place,
      "is valid for " + std::to_string(valid) + " of the alternatives, not for one" + faults);
}

}  // namespace gdi::test
