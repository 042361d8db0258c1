#pragma once

#include "DptCatalogue.h"

// The meanings of 0 and 1 of the booleans (main number 1).
namespace Nelmo::DptBooleanNames {

inline constexpr DptValueName Switch[] = {{0, "off"}, {1, "on"}};
inline constexpr DptValueName Bool[] = {{0, "false"}, {1, "true"}};
inline constexpr DptValueName Enable[] = {{0, "disable"}, {1, "enable"}};
inline constexpr DptValueName Ramp[] = {{0, "no ramp"}, {1, "ramp"}};
inline constexpr DptValueName Alarm[] = {{0, "no alarm"}, {1, "alarm"}};
inline constexpr DptValueName BinaryValue[] = {{0, "low"}, {1, "high"}};
inline constexpr DptValueName Step[] = {{0, "decrease"}, {1, "increase"}};
inline constexpr DptValueName UpDown[] = {{0, "up"}, {1, "down"}};
inline constexpr DptValueName OpenClose[] = {{0, "open"}, {1, "close"}};
inline constexpr DptValueName Start[] = {{0, "stop"}, {1, "start"}};
inline constexpr DptValueName State[] = {{0, "inactive"}, {1, "active"}};
inline constexpr DptValueName Invert[] = {{0, "not inverted"}, {1, "inverted"}};
inline constexpr DptValueName DimSendStyle[] = {{0, "start/stop"}, {1, "cyclically"}};
inline constexpr DptValueName InputSource[] = {{0, "fixed"}, {1, "calculated"}};
inline constexpr DptValueName Reset[] = {{0, "no action"}, {1, "reset command"}};
inline constexpr DptValueName Ack[] = {{0, "no action"}, {1, "acknowledge command"}};
inline constexpr DptValueName Trigger[] = {{0, "trigger"}, {1, "trigger"}};
inline constexpr DptValueName Occupancy[] = {{0, "not occupied"}, {1, "occupied"}};
inline constexpr DptValueName WindowDoor[] = {{0, "closed"}, {1, "open"}};
inline constexpr DptValueName LogicalFunction[] = {{0, "or"}, {1, "and"}};
inline constexpr DptValueName SceneAB[] = {{0, "scene A"}, {1, "scene B"}};
inline constexpr DptValueName ShutterBlindsMode[] = {{0, "only move up/down mode (shutter)"},
                                                     {1, "move up/down + step-stop mode (blind)"}};
inline constexpr DptValueName DayNight[] = {{0, "day"}, {1, "night"}};
inline constexpr DptValueName HeatCool[] = {{0, "cooling"}, {1, "heating"}};
inline constexpr DptValueName ConsumerProducer[] = {{0, "consumer"}, {1, "producer"}};
inline constexpr DptValueName EnergyDirection[] = {{0, "positive"}, {1, "negative"}};

}  // namespace Nelmo::DptBooleanNames
