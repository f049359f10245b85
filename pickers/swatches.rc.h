// The measures of the palette windows, in twips.
#pragma once

#define WEBSAFE_COLUMNS 36
#define WEBSAFE_ROWS 6
#define WEBSAFE_SIZE 315

#define FAILSAFE_COUNT 16
#define FAILSAFE_WIDTH 720
#define FAILSAFE_HEIGHT 705
#define FAILSAFE_STEP 708

#define JAVASCRIPT_COLUMNS 7
#define JAVASCRIPT_ROWS 20
#define JAVASCRIPT_SIZE 250
#define JAVASCRIPT_TOP 420
