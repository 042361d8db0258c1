#pragma once

#include <cstdint>
#include <string>

#include "KnxBinaryData.h"
#include "KnxGroupValueException.h"

namespace KnxStack {

// The payload of a KNX group telegram and its defined size in bits. A value
// of up to 6 bits occupies one byte of which the low 6 bits are kept; larger
// values occupy size / 8 bytes, rounded up. Every SetAs... writes its format
// and sets the defined size to the format's size; every GetAs... throws
// GroupValueException unless the defined size is the format's size and the
// payload holds the whole format.
class GroupValue {
 public:
  enum DayOfWeek : unsigned char {
    NoDay = 0,
    Monday = 1,
    Tuesday = 2,
    Wednesday = 3,
    Thursday = 4,
    Friday = 5,
    Saturday = 6,
    Sunday = 7,
  };

  GroupValue() = default;
  GroupValue(const BinaryData& data, unsigned int sizeInBits);
  ~GroupValue() = default;
  GroupValue(const GroupValue&) = default;
  GroupValue& operator=(const GroupValue&) = default;
  GroupValue(GroupValue&&) noexcept = default;
  GroupValue& operator=(GroupValue&&) noexcept = default;

  unsigned int GetDefinedSize() const { return m_definedSize; }
  const BinaryData& GetRawData() const { return m_data; }
  // Replaces the bytes; the defined size becomes 8 times their count.
  void SetRawData(const BinaryData& data);

  bool GetAsBoolean() const;
  void SetAsBoolean(bool value);
  unsigned char GetAsUnsigned2() const;
  void SetAsUnsigned2(unsigned char value);
  unsigned char GetAsUnsigned4() const;
  void SetAsUnsigned4(unsigned char value);
  unsigned char GetAsUnsigned8() const;
  void SetAsUnsigned8(unsigned char value);
  signed char GetAsSigned8() const;
  void SetAsSigned8(signed char value);
  std::uint16_t GetAsUnsigned16() const;
  void SetAsUnsigned16(std::uint16_t value);
  std::int16_t GetAsSigned16() const;
  void SetAsSigned16(std::int16_t value);
  std::uint32_t GetAsUnsigned24() const;
  void SetAsUnsigned24(std::uint32_t value);
  std::uint32_t GetAsUnsigned32() const;
  void SetAsUnsigned32(std::uint32_t value);
  std::int32_t GetAsSigned32() const;
  void SetAsSigned32(std::int32_t value);
  // KNX 2-octet float; 7F FF is the invalid value and decodes as NaN.
  double GetAsFloat16() const;
  void SetAsFloat16(double value);
  float GetAsFloat32() const;
  void SetAsFloat32(float value);
  std::string GetAsString14() const;
  void SetAsString14(const std::string& value);

  // Pointers may be null to skip a field. Years are full years.
  void GetAsDate(int* day, int* month, int* year) const;
  void SetAsDate(int day, int month, int year);
  void GetAsTimeOfDay(int* hour, int* minute, int* second, DayOfWeek* dayOfWeek) const;
  void SetAsTimeOfDay(int hour, int minute, int second, DayOfWeek dayOfWeek);
  void GetAsDateTime(int* day, int* month, int* year, int* hour, int* minute, int* second, DayOfWeek* dayOfWeek,
                     bool* fault, bool* workingDay, bool* noWorkingDay, bool* noYear, bool* noDate, bool* noDayOfWeek,
                     bool* noTime, bool* summerTime, bool* clockQuality) const;
  void SetAsDateTime(int day, int month, int year, int hour, int minute, int second, DayOfWeek dayOfWeek, bool fault,
                     bool workingDay, bool noWorkingDay, bool noYear, bool noDate, bool noDayOfWeek, bool noTime,
                     bool summerTime, bool clockQuality);

 private:
  BinaryData m_data;
  unsigned int m_definedSize = 0;
};

}  // namespace KnxStack
