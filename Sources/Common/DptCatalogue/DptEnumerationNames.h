#pragma once

#include "DptCatalogue.h"

// The values of the enumerations (main numbers 20 and 23).
namespace Nelmo::DptEnumerationNames {

inline constexpr DptValueName SCLOMode[] = {{0, "autonomous"}, {1, "slave"}, {2, "master"}};
inline constexpr DptValueName BuildingMode[] = {
    {0, "building in use"}, {1, "building not used"}, {2, "building protection"}};
inline constexpr DptValueName OccMode[] = {{0, "occupied"}, {1, "standby"}, {2, "not occupied"}};
inline constexpr DptValueName Priority[] = {{0, "high"}, {1, "medium"}, {2, "low"}, {3, "void"}};
inline constexpr DptValueName LightApplicationMode[] = {{0, "normal"}, {1, "presence simulation"}, {2, "night round"}};
inline constexpr DptValueName ApplicationArea[] = {{0, "no fault"},
                                                   {1, "system and functions of common interest"},
                                                   {10, "HVAC general FBs"},
                                                   {11, "HVAC hot water heating"},
                                                   {12, "HVAC direct electrical heating"},
                                                   {13, "HVAC terminal units"},
                                                   {14, "HVAC VAC"},
                                                   {20, "lighting"},
                                                   {30, "security"},
                                                   {40, "load management"},
                                                   {50, "shutters and blinds"}};
inline constexpr DptValueName AlarmClassType[] = {{1, "simple alarm"}, {2, "basic alarm"}, {3, "extended alarm"}};
inline constexpr DptValueName PSUMode[] = {{0, "disabled"}, {1, "enabled"}, {2, "auto"}};
inline constexpr DptValueName ErrorClassHVAC[] = {{0, "no fault"},
                                                  {1, "sensor fault"},
                                                  {2, "process fault / controller fault"},
                                                  {3, "actuator fault"},
                                                  {4, "other fault"}};
inline constexpr DptValueName TimeDelay[] = {
    {0, "not active"}, {1, "1 s"},    {2, "2 s"},    {3, "3 s"},     {4, "5 s"},       {5, "10 s"},     {6, "15 s"},
    {7, "20 s"},       {8, "30 s"},   {9, "45 s"},   {10, "1 min"},  {11, "1.25 min"}, {12, "1.5 min"}, {13, "2 min"},
    {14, "2.5 min"},   {15, "3 min"}, {16, "5 min"}, {17, "15 min"}, {18, "20 min"},   {19, "30 min"},  {20, "1 h"},
    {21, "2 h"},       {22, "3 h"},   {23, "5 h"},   {24, "12 h"},   {25, "24 h"}};
inline constexpr DptValueName Beaufort[] = {
    {0, "calm (no wind)"},  {1, "light air"},    {2, "light breeze"},        {3, "gentle breeze"},
    {4, "moderate breeze"}, {5, "fresh breeze"}, {6, "strong breeze"},       {7, "near gale / moderate gale"},
    {8, "fresh gale"},      {9, "strong gale"},  {10, "whole gale / storm"}, {11, "violent storm"},
    {12, "hurricane"}};
inline constexpr DptValueName SensorSelect[] = {{0, "inactive"},
                                                {1, "digital input not inverted"},
                                                {2, "digital input inverted"},
                                                {3, "analog input"},
                                                {4, "temperature sensor input"}};
inline constexpr DptValueName ActuatorConnectType[] = {{1, "sensor connection"}, {2, "controller connection"}};
inline constexpr DptValueName PowerReturnMode[] = {
    {0, "do not send"}, {1, "send always"}, {2, "send if value changed during powerdown"}};
inline constexpr DptValueName FuelType[] = {{0, "auto"}, {1, "oil"}, {2, "gas"}, {3, "solid state fuel"}};
inline constexpr DptValueName BurnerType[] = {{1, "1 stage"}, {2, "2 stage"}, {3, "modulating"}};
inline constexpr DptValueName HVACMode[] = {
    {0, "Auto"}, {1, "Comfort"}, {2, "Standby"}, {3, "Economy"}, {4, "Building Protection"}};
inline constexpr DptValueName DHWMode[] = {
    {0, "auto"}, {1, "legio protect"}, {2, "normal"}, {3, "reduced"}, {4, "off/frost protect"}};
inline constexpr DptValueName LoadPriority[] = {{0, "none"}, {1, "shift load priority"}, {2, "absolute load priority"}};
inline constexpr DptValueName HVACContrMode[] = {{0, "auto"},
                                                 {1, "heat"},
                                                 {2, "morning warmup"},
                                                 {3, "cool"},
                                                 {4, "night purge"},
                                                 {5, "precool"},
                                                 {6, "off"},
                                                 {7, "test"},
                                                 {8, "emergency heat"},
                                                 {9, "fan only"},
                                                 {10, "free cool"},
                                                 {11, "ice"},
                                                 {12, "maximum heating mode"},
                                                 {13, "economic heat/cool mode"},
                                                 {14, "dehumidification"},
                                                 {15, "calibration mode"},
                                                 {16, "emergency cool mode"},
                                                 {17, "emergency steam mode"},
                                                 {20, "no demand"}};
inline constexpr DptValueName HVACEmergMode[] = {
    {0, "normal"},          {1, "emergency pressure"}, {2, "emergency depressure"},
    {3, "emergency purge"}, {4, "emergency shutdown"}, {5, "emergency fire"}};
inline constexpr DptValueName ChangeoverMode[] = {{0, "auto"}, {1, "cooling only"}, {2, "heating only"}};
inline constexpr DptValueName ValveMode[] = {{1, "heat stage A for normal heating"},
                                             {2, "heat stage B for heating with two stages (A + B)"},
                                             {3, "cool stage A for normal cooling"},
                                             {4, "cool stage B for cooling with two stages (A + B)"},
                                             {5, "heat/cool for changeover applications"}};
inline constexpr DptValueName HeaterMode[] = {
    {1, "heat stage A on/off"}, {2, "heat stage A proportional"}, {3, "heat stage B proportional"}};
inline constexpr DptValueName FanMode[] = {{0, "not running"}, {1, "permanently running"}, {2, "running in intervals"}};
inline constexpr DptValueName MasterSlaveMode[] = {{0, "autonomous"}, {1, "master"}, {2, "slave"}};
inline constexpr DptValueName StatusRoomSetp[] = {
    {0, "normal setpoint"}, {1, "alternative setpoint"}, {2, "building protection setpoint"}};
inline constexpr DptValueName HumDehumMode[] = {{0, "inactive"}, {1, "humidification"}, {2, "dehumidification"}};
inline constexpr DptValueName ADAType[] = {{1, "air damper"}, {2, "VAV"}};
inline constexpr DptValueName BackupMode[] = {{0, "backup value"}, {1, "keep last state"}};
inline constexpr DptValueName StartSynchronization[] = {
    {0, "position unchanged"}, {1, "single close"}, {2, "single open"}};
inline constexpr DptValueName BehaviourLockUnlock[] = {{0, "off"},
                                                       {1, "on"},
                                                       {2, "no change"},
                                                       {3, "value according additional parameter"},
                                                       {4, "memory function value"},
                                                       {5, "updated value"},
                                                       {6, "value before locking"}};
inline constexpr DptValueName BehaviourBusPowerUpDown[] = {{0, "off"},
                                                           {1, "on"},
                                                           {2, "no change"},
                                                           {3, "value according additional parameter"},
                                                           {4, "last (value before bus power down)"}};
inline constexpr DptValueName DaliFadeTime[] = {{0, "0 s (no fade)"}, {1, "0.7 s"},   {2, "1.0 s"},   {3, "1.4 s"},
                                                {4, "2.0 s"},         {5, "2.8 s"},   {6, "4.0 s"},   {7, "5.7 s"},
                                                {8, "8.0 s"},         {9, "11.3 s"},  {10, "16.0 s"}, {11, "22.6 s"},
                                                {12, "32.0 s"},       {13, "45.3 s"}, {14, "64.0 s"}, {15, "90.5 s"}};
inline constexpr DptValueName BlinkingMode[] = {
    {0, "blinking disabled"}, {1, "without acknowledge"}, {2, "blinking with acknowledge"}};
inline constexpr DptValueName LightControlMode[] = {{0, "automatic light control"}, {1, "manual light control"}};
inline constexpr DptValueName SwitchPBModel[] = {{1, "one PB/binary input mode"}, {2, "two PBs/binary inputs mode"}};
inline constexpr DptValueName PBAction[] = {{0, "inactive (no message sent)"},
                                            {1, "switch off message sent"},
                                            {2, "switch on message sent"},
                                            {3, "inverse value of info sent"}};
inline constexpr DptValueName SwitchOnMode[] = {
    {0, "last actual value"}, {1, "value according additional parameter"}, {2, "last received absolute set value"}};
inline constexpr DptValueName LoadTypeSet[] = {{0, "automatic"},
                                               {1, "leading edge (inductive load)"},
                                               {2, "trailing edge (resistive or capacitive load)"},
                                               {3, "switch mode only (non-dimmable load)"},
                                               {4, "automatic once"},
                                               {5, "CFL, leading"},
                                               {6, "CFL, trailing"},
                                               {7, "LED, leading"},
                                               {8, "LED, trailing"}};
inline constexpr DptValueName LoadTypeDetected[] = {{0, "undefined"},
                                                    {1, "leading edge (inductive load)"},
                                                    {2, "trailing edge (capacitive load)"},
                                                    {3, "detection not possible or error"},
                                                    {4, "calibration pending, waiting on trigger"},
                                                    {5, "CFL, leading"},
                                                    {6, "CFL, trailing"},
                                                    {7, "LED, leading"},
                                                    {8, "LED, trailing"}};
inline constexpr DptValueName SABExceptBehaviour[] = {
    {0, "up"}, {1, "down"}, {2, "no change"}, {3, "value according additional parameter"}, {4, "stop"}};
inline constexpr DptValueName SABBehaviourLockUnlock[] = {
    {0, "up"},   {1, "down"},          {2, "no change"},           {3, "value according additional parameter"},
    {4, "stop"}, {5, "updated value"}, {6, "value before locking"}};
inline constexpr DptValueName BlindsControlMode[] = {{0, "automatic control"}, {1, "manual control"}};
inline constexpr DptValueName CommMode[] = {{0, "data link layer"},
                                            {1, "data link layer bus monitor"},
                                            {2, "data link layer raw frames"},
                                            {6, "cEMI transport layer"},
                                            {255, "no layer"}};
inline constexpr DptValueName RFModeSelect[] = {
    {0, "asynchronous"}, {1, "asynchronous + BiBat master"}, {2, "asynchronous + BiBat slave"}};
inline constexpr DptValueName RFFilterSelect[] = {{0, "no filtering"},
                                                  {1, "filtering by DoA"},
                                                  {2, "filtering by KNX serial number table"},
                                                  {3, "filtering by DoA and KNX serial number table"}};
inline constexpr DptValueName Medium[] = {{0, "KNX TP1"}, {1, "KNX PL110"}, {2, "KNX RF"}, {5, "KNX IP"}};
inline constexpr DptValueName BreakerValveState[] = {
    {0, "breaker/valve is closed"}, {1, "breaker/valve is open"}, {2, "breaker/valve is released"}, {255, "invalid"}};
inline constexpr DptValueName GasMeasurementCondition[] = {
    {0, "unknown"}, {1, "temperature converted"}, {2, "at base condition"}, {3, "at measurement condition"}};
inline constexpr DptValueName OnOffAction[] = {{0, "off"}, {1, "on"}, {2, "off/on"}, {3, "on/off"}};
inline constexpr DptValueName AlarmReaction[] = {
    {0, "no alarm is used"}, {1, "alarm position is up"}, {2, "alarm position is down"}};
inline constexpr DptValueName UpDownAction[] = {{0, "up"}, {1, "down"}, {2, "up/down"}, {3, "down/up"}};
inline constexpr DptValueName HVACPBAction[] = {
    {0, "comfort/economy"}, {1, "comfort/nothing"}, {2, "economy/nothing"}, {3, "building protection/auto"}};

}  // namespace Nelmo::DptEnumerationNames
