#pragma once

// Converters for the facade's tests: they record what they were handed and
// do what their script says. A prototype and its clones share one script, so
// a test sees what the clone stored in the map did.

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "KnxConverter.h"
#include "KnxStack.h"
#include "UloPlatform.h"

namespace TestConverters {

struct Call {
  KNXDPT dpt;
  ULOVALUE value;
  KnxStack::GroupValue groupValue;
  const KnxStack::GroupValue* groupValueAddress;
  const ULOVALUE* valueAddress;
};

enum class Behaviour { Succeed, Fail, ThrowGroupValueException, ThrowOther };

inline constexpr const char* ThrownText = "GroupValue: expected 16 bits, defined size is 8";

struct Script {
  Behaviour behaviour = Behaviour::Succeed;
  // What ToKnxValue writes into the group value before it returns.
  KnxStack::GroupValue encoded;
  // What FromKnxValue writes into the value's payload.
  std::int32_t decoded = 0;
  std::vector<Call> toKnxCalls;
  std::vector<Call> fromKnxCalls;
  int clonesAlive = 0;
};

class RecordingConverter : public Nelmo::KnxConverter {
 public:
  explicit RecordingConverter(std::shared_ptr<Script> script) : m_script(std::move(script)) {}
  RecordingConverter(const RecordingConverter& other) : KnxConverter(other), m_script(other.m_script), m_isClone(true) {
    ++m_script->clonesAlive;
  }
  ~RecordingConverter() override {
    if (m_isClone) {
      --m_script->clonesAlive;
    }
  }

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override {
    m_script->toKnxCalls.push_back(Call{dpt, value, groupValue, &groupValue, &value});
    groupValue = m_script->encoded;
    return Act();
  }

  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override {
    m_script->fromKnxCalls.push_back(Call{dpt, value, groupValue, &groupValue, &value});
    value.SetInt32(m_script->decoded);
    return Act();
  }

  Nelmo::KnxConverter* Clone() const override { return new RecordingConverter(*this); }

  const Script& GetScript() const { return *m_script; }

 private:
  bool Act() const {
    switch (m_script->behaviour) {
      case Behaviour::Succeed:
        return true;
      case Behaviour::Fail:
        return false;
      case Behaviour::ThrowGroupValueException:
        throw KnxStack::GroupValueException(ThrownText);
      case Behaviour::ThrowOther:
        throw std::runtime_error("not a group value error");
    }
    return false;
  }

  std::shared_ptr<Script> m_script;
  bool m_isClone = false;
};

// Its clone is null, which leaves a map row without a converter.
class NullCloneConverter : public Nelmo::KnxConverter {
 public:
  bool ToKnxValue(const KNXDPT&, const ULOVALUE&, KnxStack::GroupValue&) override { return true; }
  bool FromKnxValue(const KNXDPT&, const KnxStack::GroupValue&, ULOVALUE&) override { return true; }
  Nelmo::KnxConverter* Clone() const override { return nullptr; }
};

}  // namespace TestConverters
