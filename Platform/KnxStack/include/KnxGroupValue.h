#pragma once

#include <cstdint>
#include <string>

#include "KnxBinaryData.h"
#include "KnxGroupValueException.h"

namespace KnxStack {

// The payload of a KNX group telegram and its defined size in bits. A value
// of up to 6 bits occupies one byte of which the low 6 bits are kept (the
// room a telegram has for it); larger values occupy size / 8 bytes, rounded
// up. Every SetAs... writes its format and sets the defined size to the
// format's size; it throws GroupValueException, leaving the value as it was,
// when a field does not fit its bits (Unsigned24 is masked to 24 bits and
// the setters of up to 6 bits keep their argument's low 6 bits instead).
// Every GetAs... throws GroupValueException unless the defined size is the
// format's size and the payload holds the whole format; getters take fields
// as they are on the bus, reserved bits masked away, unchecked.
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
  // Keeps the bytes as given; where sizeInBits is at most 6 only the low 6
  // bits of the first byte.
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
  // KNX 2-octet float; 7F FF is the invalid value: NaN is written as 7F FF
  // and 7F FF reads as a quiet NaN. A finite value that would be written as
  // 7F FF is written as 7F FE. Infinities and finite values outside
  // -671088.64 to 670760.96 throw.
  double GetAsFloat16() const;
  void SetAsFloat16(double value);
  float GetAsFloat32() const;
  void SetAsFloat32(float value);
  // Bytes up to the first zero byte.
  std::string GetAsString14() const;
  // Zero-padded to 14 bytes, a longer text cut at 14.
  void SetAsString14(const std::string& value);

  // Pointers may be null to skip a field. Years are full years: the date's
  // setter accepts 1990 to 2089, the date-time's 1900 to 2155.
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
  // Defined in the library's own sources (KnxGroupValueBytes.h), inline so
  // that each accessor becomes straight-line code for its format.
  // The payload after checking that it holds a value of the given format.
  inline const unsigned char* Payload(unsigned int formatBits) const;
  // Replaces the payload with the bytes of a value of the given format.
  inline void Store(const unsigned char* bytes, unsigned int formatBits);
  // Unsigned values of up to 32 bits, most significant byte first.
  inline std::uint32_t ReadUnsigned(unsigned int formatBits) const;
  inline void WriteUnsigned(std::uint32_t value, unsigned int formatBits);

  BinaryData m_data;
  unsigned int m_definedSize = 0;
};

}  // namespace KnxStack
