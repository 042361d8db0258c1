#include "JsonWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Knxconv {

namespace {

// Printable ASCII but the quote and the backslash: such a text is its own
// JSON form.
bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](const char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

// Room for any number's text, as JsonLine has.
constexpr std::size_t NumberSize = 64;

// value written into text, as std::to_string writes it.
template <typename Integer>
std::string_view IntegerText(Integer value, std::array<char, NumberSize>& text) {
  const std::to_chars_result result = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), static_cast<std::size_t>(result.ptr - text.data())};
}

}  // namespace

JsonObjectWriter::JsonObjectWriter(std::string& line) : m_line(line) {
  m_line.Put('{');
}

void JsonObjectWriter::Key(std::string_view key) {
  if (!m_first) {
    m_line.Put(',');
  }
  m_first = false;
  m_line.Put('"');
  m_line.Put(key);
  m_line.Put("\":");
}

void JsonObjectWriter::String(std::string_view key, std::string_view value) {
  Key(key);
  PutString(value);
}

void JsonObjectWriter::PutString(std::string_view value) {
  if (IsPlain(value)) {
    m_line.Put('"');
    m_line.Put(value);
    m_line.Put('"');
  } else {
    m_line.Put(JsonLine(Json(value)));
  }
}

void JsonObjectWriter::Text(std::string_view key, const char* value) {
  Key(key);
  if (value != nullptr) {
    PutString(value);
  } else {
    m_line.Put("null");
  }
}

void JsonObjectWriter::Bool(std::string_view key, bool value) {
  Key(key);
  m_line.Put(value ? "true" : "false");
}

void JsonObjectWriter::Signed(std::string_view key, std::int64_t value) {
  std::array<char, NumberSize> text{};
  Key(key);
  m_line.Put(IntegerText(value, text));
}

void JsonObjectWriter::Unsigned(std::string_view key, std::uint64_t value) {
  std::array<char, NumberSize> text{};
  Key(key);
  m_line.Put(IntegerText(value, text));
}

void JsonObjectWriter::Number(std::string_view key, double value) {
  if (!std::isfinite(value)) {
    Null(key);
    return;
  }
  // The shortest text that reads back as value, as JsonLine writes it.
  std::array<char, NumberSize> text{};
  const char* end = nlohmann::detail::to_chars(text.data(), text.data() + text.size(), value);
  Key(key);
  m_line.Put(std::string_view(text.data(), static_cast<std::size_t>(end - text.data())));
}

void JsonObjectWriter::Null(std::string_view key) {
  Key(key);
  m_line.Put("null");
}

void JsonObjectWriter::Texts(std::string_view key, const char* const* values, std::size_t count) {
  Key(key);
  m_line.Put('[');
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) {
      m_line.Put(',');
    }
    PutString(values[i]);
  }
  m_line.Put(']');
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
  } else if (value.is_number_float()) {
    Number(key, value.get<double>());
  } else {
    Key(key);
    m_line.Put(value.is_null() ? "null" : JsonLine(value));
  }
}

void JsonObjectWriter::Open(std::string_view key) {
  Key(key);
  m_line.Put('{');
  m_first = true;
}

void JsonObjectWriter::Close() {
  m_line.Put('}');
  m_first = false;
  m_line.Finish();
}

}  // namespace Knxconv
