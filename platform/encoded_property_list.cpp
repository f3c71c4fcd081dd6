// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

#include <plist/plist.h>

#include "platform/binary_property_list_check.h"
#include "platform/property_list_forms.h"
#include "platform/unicode_text.h"

namespace gdi {

namespace {

using Node = std::unique_ptr<void, decltype(&plist_free)>;

// The library frees containers by recursion, and its own idea of a tag is what counts: so their
// number is limited, not their nesting as somebody else would see it.
constexpr std::size_t kMaxContainersOfXML = 10000;

std::optional<PropertyListValue> valueOf(plist_t node, int depth);

std::optional<PropertyListValue> arrayOf(plist_t node, int depth) {
  PropertyListValue::Array items;
  plist_array_iter iterator = nullptr;
  plist_array_new_iter(node, &iterator);
  const std::unique_ptr<void, decltype(&std::free)> owner(iterator, &std::free);
  plist_t item = nullptr;
  for (plist_array_next_item(node, iterator, &item); item != nullptr;
       plist_array_next_item(node, iterator, &item)) {
    std::optional<PropertyListValue> value = valueOf(item, depth + 1);
    if (!value) {
      return std::nullopt;
    }
    items.push_back(std::move(*value));
  }
  return valueWith(std::move(items));
}

std::optional<PropertyListValue> dictionaryOf(plist_t node, int depth) {
  PropertyListValue::Dictionary entries;
  plist_dict_iter iterator = nullptr;
  plist_dict_new_iter(node, &iterator);
  const std::unique_ptr<void, decltype(&std::free)> owner(iterator, &std::free);
  while (true) {
    char* key = nullptr;
    plist_t item = nullptr;
    plist_dict_next_item(node, iterator, &key, &item);
    const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, &std::free);
    if (item == nullptr) {
      return valueWith(std::move(entries));
    }
    std::optional<PropertyListValue> value = valueOf(item, depth + 1);
    if (!value || key == nullptr || !isUtf8(key)) {
      return std::nullopt;
    }
    entries.insert_or_assign(key, std::move(*value));
  }
}

// The bytes that the library keeps of a text or of data, none when it has no buffer for them.
std::span<const char> bytesOf(plist_t node, const char* (*pointer)(plist_t, std::uint64_t*)) {
  std::uint64_t length = 0;
  const char* bytes = pointer(node, &length);
  return {bytes, bytes == nullptr ? 0 : static_cast<std::size_t>(length)};
}

std::optional<PropertyListValue> valueOf(plist_t node, int depth) {
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
      std::uint8_t flag = 0;
      plist_get_bool_val(node, &flag);
      return valueWith(flag != 0);
    }
    case PLIST_UINT: {  // negative integers come as their two's complement
      std::uint64_t integer = 0;
      plist_get_uint_val(node, &integer);
      return valueWith(static_cast<std::int64_t>(integer));
    }
    case PLIST_UID: {
      std::uint64_t integer = 0;
      plist_get_uid_val(node, &integer);
      return valueWith(static_cast<std::int64_t>(integer));
    }
    case PLIST_REAL: {
      double real = 0;
      plist_get_real_val(node, &real);
      return valueWith(real);
    }
    case PLIST_DATE: {
      std::int32_t seconds = 0;
      std::int32_t microseconds = 0;
      plist_get_date_val(node, &seconds, &microseconds);
      return valueWith(seconds + microseconds / 1e6);
    }
    case PLIST_STRING: {
      const std::span<const char> bytes = bytesOf(node, &plist_get_string_ptr);
      std::string text(bytes.begin(), bytes.end());
      return isUtf8(text) ? valueWith(std::move(text)) : std::nullopt;
    }
    case PLIST_DATA: {
      const std::span<const char> bytes = bytesOf(node, &plist_get_data_ptr);
      return valueWith(PropertyListValue::Bytes(bytes.begin(), bytes.end()));
    }
    case PLIST_ARRAY:
      return depth < kPropertyListMaxDepth ? arrayOf(node, depth) : std::nullopt;
    case PLIST_DICT:
      return depth < kPropertyListMaxDepth ? dictionaryOf(node, depth) : std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<PropertyListValue> valueOfOwned(plist_t list) {
  const Node owner(list, &plist_free);
  return list == nullptr ? std::nullopt : valueOf(list, 0);
}

std::size_t countOf(std::string_view what, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t found = text.find(what); found != std::string_view::npos;
       found = text.find(what, found + what.size())) {
    ++count;
  }
  return count;
}

// Takes the front of `text` off up to and with the next `end`, or everything when there is none.
void removeThrough(std::string_view end, std::string_view& text) {
  const std::size_t found = text.find(end);
  text.remove_prefix(found == std::string_view::npos ? text.size() : found + end.size());
}

// Whether the document ends with its root element: nothing but white space and comments may follow.
// The library stops reading there.
bool endsWithRoot(std::string_view text) {
  constexpr std::string_view kEnd = "</plist>";
  while (!text.starts_with(kEnd)) {
    if (text.empty()) {
      return false;
    }
    if (text.starts_with("<!--")) {
      removeThrough("-->", text);
    } else if (text.starts_with("<![CDATA[")) {
      removeThrough("]]>", text);
    } else {
      text.remove_prefix(std::min(text.find('<', 1), text.size()));
    }
  }
  text.remove_prefix(kEnd.size());
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    if (!text.starts_with("<!--")) {
      return text.empty();
    }
    removeThrough("-->", text);
  }
}

}  // namespace

std::optional<PropertyListValue> propertyListWithXML(const std::string& text) {
  if (text.size() > kPropertyListMaxSize || !endsWithRoot(text) ||
      countOf("<array", text) + countOf("<dict", text) > kMaxContainersOfXML) {
    return std::nullopt;
  }
  plist_t list = nullptr;
  plist_from_xml(text.c_str(), static_cast<std::uint32_t>(text.size()), &list);
  return valueOfOwned(list);
}

std::optional<PropertyListValue> propertyListWithBinary(std::span<const std::uint8_t> data) {
  if (data.size() > kPropertyListMaxSize || !isBearableBinaryPropertyList(data)) {
    return std::nullopt;
  }
  plist_t list = nullptr;
  plist_from_bin(reinterpret_cast<const char*>(data.data()),
                 static_cast<std::uint32_t>(data.size()), &list);
  return valueOfOwned(list);
}

}  // namespace gdi
