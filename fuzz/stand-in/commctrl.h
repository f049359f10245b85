// What of the common controls do conversions of text need? Nothing.
#pragma once
