#pragma once

// The base platform library as the converter library uses it.
#include "KnxDpt.h"
#include "UloByteArray.h"
#include "UloLog.h"
#include "UloRelScaling.h"
#include "UloTime.h"
#include "UloValue.h"
#include "UloValueType.h"
