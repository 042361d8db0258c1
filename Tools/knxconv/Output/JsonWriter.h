#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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
  void Unsigned(std::string_view key, std::uint64_t value);
  // Any JSON value.
  void Value(std::string_view key, const Json& value);
  // The members of a JSON object, appended in their order.
  void Members(const Json& object);
  // Ends the object; nothing may be written after.
  void Close();

 private:
  void Key(std::string_view key);
  void AppendString(std::string_view value);

  std::string& m_line;
  bool m_first = true;
};

}  // namespace Knxconv
