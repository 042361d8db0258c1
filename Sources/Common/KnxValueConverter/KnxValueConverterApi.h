#pragma once

// Everything a consumer of the converter library needs: the facade, the DPT
// table, the converter interface, the converters and the value ranges.
#include "CodingUtf8.h"
#include "DptValueEntry.h"
#include "DptValueMap.h"
#include "FloatRange.h"
#include "IntegerRange.h"
#include "KnxConverter.h"
#include "KnxConverterBit.h"
#include "KnxConverterDateAndTime.h"
#include "KnxConverterDefault.h"
#include "KnxConverterFloat.h"
#include "KnxConverterInteger.h"
#include "KnxConverterScene.h"
#include "KnxConverterString.h"
#include "KnxDptFormat.h"
#include "KnxValueConverter.h"
#include "LongIntegerRange.h"
