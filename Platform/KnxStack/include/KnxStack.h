#pragma once

// The KNX stack interface library as the converter library uses it.
#include "KnxBinaryData.h"
#include "KnxGroupValue.h"
#include "KnxGroupValueException.h"
