// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Holds JSON documents against a JSON Schema, as far as docs/gdiview-info-1.schema.json needs it.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace gdi::test {

class JsonSchema {
 public:
  explicit JsonSchema(nlohmann::json schema) : root_(std::move(schema)) {}

  // What is wrong with the document first of all, with the place of it; nothing for a valid one.
  // A keyword that this class does not know is wrong too.
  [[nodiscard]] std::string faultOf(const nlohmann::json& document) const {
    return faultOf(document, root_, "");
  }

 private:
  using Json = nlohmann::json;

  [[nodiscard]] std::string faultOf(const Json& value, const Json& schema,
                                    const std::string& place) const;
  [[nodiscard]] std::string faultOfKeyword(const Json& value, const Json& schema,
                                           const std::string& keyword,
                                           const std::string& place) const;
  [[nodiscard]] std::string faultOfMembers(const Json& value, const Json& schema,
                                           const std::string& place) const;
  [[nodiscard]] std::string faultOfAlternatives(const Json& value, const Json& alternatives,
                                                const std::string& place) const;

  Json root_;
};

}  // namespace gdi::test
