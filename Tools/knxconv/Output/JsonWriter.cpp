#include "JsonWriter.h"

#include <algorithm>

namespace Knxconv {

namespace {

// Printable ASCII but the quote and the backslash: such a text is its own
// JSON form.
bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](const char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

}  // namespace

JsonObjectWriter::JsonObjectWriter(std::string& line) : m_line(line) {
  m_line.assign(1, '{');
}

void JsonObjectWriter::Key(std::string_view key) {
  if (!m_first) {
    m_line += ',';
  }
  m_first = false;
  m_line.append(1, '"').append(key).append("\":");
}

void JsonObjectWriter::String(std::string_view key, std::string_view value) {
  Key(key);
  AppendString(value);
}

void JsonObjectWriter::AppendString(std::string_view value) {
  if (IsPlain(value)) {
    m_line.append(1, '"').append(value).append(1, '"');
  } else {
    m_line += JsonLine(Json(value));
  }
}

void JsonObjectWriter::Unsigned(std::string_view key, std::uint64_t value) {
  Key(key);
  m_line += std::to_string(value);
}

void JsonObjectWriter::Value(std::string_view key, const Json& value) {
  Key(key);
  if (value.is_string()) {
    AppendString(value.get_ref<const std::string&>());
  } else if (value.is_boolean()) {
    m_line += value.get<bool>() ? "true" : "false";
  } else if (value.is_number_unsigned()) {
    m_line += std::to_string(value.get<std::uint64_t>());
  } else if (value.is_number_integer()) {
    m_line += std::to_string(value.get<std::int64_t>());
  } else if (value.is_null()) {
    m_line += "null";
  } else {
    m_line += JsonLine(value);
  }
}

void JsonObjectWriter::Members(const Json& object) {
  for (const auto& member : object.items()) {
    Value(member.key(), member.value());
  }
}

void JsonObjectWriter::Close() {
  m_line += '}';
}

}  // namespace Knxconv
