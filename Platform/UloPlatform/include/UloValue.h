#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "UloTime.h"
#include "UloValueType.h"

// The platform's generic value: a type tag and a payload whose form follows
// the tag. The integer kinds share one storage, so a value stored through one
// integer kind reads back the same through any wider or same-width kind, and
// the signed and unsigned 32-bit payloads are the same 32 bits.
//
// Setters write the payload only and leave the tag alone; the factories set
// both. Copying allocates nothing unless the text is long.
class ULOVALUE {
 public:
  ULOVALUE() = default;  // the empty value: IVT_ANY, zero payload
  explicit ULOVALUE(UloValueType type) : m_type(type) {}
  // Written out so that a value without text copies its fields and nothing
  // else: the text's copy is skipped where it is empty.
  ULOVALUE(const ULOVALUE& other)
      : m_type(other.m_type),
        m_bool(other.m_bool),
        m_integer(other.m_integer),
        m_double(other.m_double),
        m_time(other.m_time),
        m_text(other.m_text.empty() ? std::string() : other.m_text) {}
  ULOVALUE& operator=(const ULOVALUE& other) {
    if (this != &other) {
      m_type = other.m_type;
      m_bool = other.m_bool;
      m_integer = other.m_integer;
      m_double = other.m_double;
      m_time = other.m_time;
      if (other.m_text.empty()) {
        m_text.clear();
      } else {
        m_text = other.m_text;
      }
    }
    return *this;
  }
  ULOVALUE(ULOVALUE&&) noexcept = default;
  ULOVALUE& operator=(ULOVALUE&&) noexcept = default;
  ~ULOVALUE() = default;

  static ULOVALUE Bool(bool value);
  static ULOVALUE Byte(std::uint8_t value, UloValueType type = IVT_BYTE);
  static ULOVALUE UInt16(std::uint16_t value);
  static ULOVALUE Int32(std::int32_t value, UloValueType type = IVT_INT32);
  static ULOVALUE UInt32(std::uint32_t value, UloValueType type = IVT_UINT32);
  static ULOVALUE UInt64(std::uint64_t value);
  static ULOVALUE Double(double value, UloValueType type = IVT_DOUBLE);
  static ULOVALUE String(std::string value);
  static ULOVALUE TimeSpan(std::int32_t seconds);
  static ULOVALUE Date(std::uint16_t year, std::uint8_t month, std::uint8_t day);
  static ULOVALUE Time(std::uint8_t hour, std::uint8_t minute, std::uint8_t second);
  static ULOVALUE DateTime(const ULOTIME& time, UloValueType type = IVT_DATETIME);

  UloValueType GetType() const { return m_type; }
  void SetType(UloValueType type) { m_type = type; }

  bool GetBool() const { return m_bool; }
  void SetBool(bool value) { m_bool = value; }

  std::uint8_t GetByte() const { return static_cast<std::uint8_t>(m_integer); }
  void SetByte(std::uint8_t value) { m_integer = value; }
  std::uint16_t GetUInt16() const { return static_cast<std::uint16_t>(m_integer); }
  void SetUInt16(std::uint16_t value) { m_integer = value; }
  std::int32_t GetInt32() const { return static_cast<std::int32_t>(static_cast<std::uint32_t>(m_integer)); }
  void SetInt32(std::int32_t value) { m_integer = static_cast<std::uint64_t>(static_cast<std::int64_t>(value)); }
  std::uint32_t GetUInt32() const { return static_cast<std::uint32_t>(m_integer); }
  void SetUInt32(std::uint32_t value) { m_integer = value; }
  std::uint64_t GetUInt64() const { return m_integer; }
  void SetUInt64(std::uint64_t value) { m_integer = value; }

  double GetDouble() const { return m_double; }
  void SetDouble(double value) { m_double = value; }

  const std::string& GetString() const { return m_text; }
  void SetString(std::string value) { m_text = std::move(value); }

  const ULOTIME& GetTime() const { return m_time; }
  ULOTIME& GetTime() { return m_time; }
  void SetTime(const ULOTIME& value) { m_time = value; }

  // Converts src into this value's current type; false, with tag and payload
  // unchanged, when that cannot be done. The same type is a plain copy.
  // - numbers into numbers when the value fits (doubles rounded half away from
  //   zero; NaN, infinities and out-of-range values fail); a boolean is 0 or 1
  // - numbers into a boolean as non-zero (NaN fails)
  // - a text holding a whole number or a decimal ("-12", "21.5", "1e3"; no
  //   blanks, no "inf" or "nan") into a number, not into a boolean
  // - a number or boolean into a text as its ToString
  // - between date, time and date-time kinds the fields both have: the date,
  //   or the time of day with weekday and summer-time flag; the rest is zero.
  //   A date and a time share nothing and do not convert.
  // Nothing else converts, and nothing converts into or out of the empty kinds.
  bool Assign(const ULOVALUE& src);
  // Integers and time spans in decimal, doubles in the shortest form that
  // reads back ("21.5", "1e+300", "nan", "-inf"), "true"/"false", texts as
  // they are, "YYYY-MM-DD", "hh:mm:ss", "YYYY-MM-DD hh:mm:ss"; "" for the
  // empty kinds and unknown types.
  std::string ToString() const;

 private:
  UloValueType m_type = IVT_ANY;
  bool m_bool = false;
  std::uint64_t m_integer = 0;
  double m_double = 0.0;
  ULOTIME m_time;
  std::string m_text;
};
