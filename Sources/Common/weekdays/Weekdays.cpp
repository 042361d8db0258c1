#include "Weekdays.h"
