// Which control does the key Tab lead to?
#pragma once

#include "randomuser/model/Look.h"

/// The one that is reached by so many times Tab from the red slider on.
int StopAfter(const Look& look, int times);
