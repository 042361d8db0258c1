#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "LineBuffer.h"
#include "Output.h"

namespace Knxconv {

// One JSON object written member by member into a line, byte for byte as
// JsonLine writes the same object: a trace writes one per telegram, and a
// Json built per telegram costs more than the conversion. Keys are the
// caller's constants and are not escaped.
class JsonObjectWriter {
 public:
  // Starts the object in line, which is cleared (its capacity kept).
  explicit JsonObjectWriter(std::string& line);

  void String(std::string_view key, std::string_view value);
  // A text, or null for none.
  void Text(std::string_view key, const char* value);
  void Bool(std::string_view key, bool value);
  void Signed(std::string_view key, std::int64_t value);
  void Unsigned(std::string_view key, std::uint64_t value);
  // A finite number as JsonLine writes it ("30.0", "21.52"); null otherwise.
  void Number(std::string_view key, double value);
  void Null(std::string_view key);
  // An array of texts.
  void Texts(std::string_view key, const char* const* values, std::size_t count);
  // Any JSON value.
  void Value(std::string_view key, const Json& value);
  // Starts an object as the value of key; Close ends it.
  void Open(std::string_view key);
  // Ends the innermost open object; after the outermost nothing may be
  // written.
  void Close();

 private:
  void Key(std::string_view key);
  void PutString(std::string_view value);

  LineBuffer m_line;
  bool m_first = true;
};

}  // namespace Knxconv
