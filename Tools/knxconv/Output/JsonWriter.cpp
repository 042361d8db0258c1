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

void JsonObjectWriter::Text(std::string_view key, const char* value) {
  Key(key);
  if (value != nullptr) {
    AppendString(value);
  } else {
    m_line += "null";
  }
}

void JsonObjectWriter::Bool(std::string_view key, bool value) {
  Key(key);
  m_line += value ? "true" : "false";
}

void JsonObjectWriter::Signed(std::string_view key, std::int64_t value) {
  Key(key);
  m_line += std::to_string(value);
}

void JsonObjectWriter::Unsigned(std::string_view key, std::uint64_t value) {
  Key(key);
  m_line += std::to_string(value);
}

void JsonObjectWriter::Texts(std::string_view key, const char* const* values, std::size_t count) {
  Key(key);
  m_line += '[';
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) {
      m_line += ',';
    }
    AppendString(values[i]);
  }
  m_line += ']';
}

void JsonObjectWriter::Value(std::string_view key, const Json& value) {
  if (value.is_string()) {
    String(key, value.get_ref<const std::string&>());
  } else if (value.is_boolean()) {
    Bool(key, value.get<bool>());
  } else if (value.is_number_unsigned()) {
    Unsigned(key, value.get<std::uint64_t>());
  } else if (value.is_number_integer()) {
    Signed(key, value.get<std::int64_t>());
  } else {
    Key(key);
    m_line += value.is_null() ? "null" : JsonLine(value);
  }
}

void JsonObjectWriter::Open(std::string_view key) {
  Key(key);
  m_line += '{';
  m_first = true;
}

void JsonObjectWriter::Close() {
  m_line += '}';
  m_first = false;
}

}  // namespace Knxconv
