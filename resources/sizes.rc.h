// The measures that the windows share, in pixels at 96 DPI.
#pragma once

#define MARGIN 12
#define PADDING 12
#define GAP 8

#define TOOLBAR_HEIGHT 30
#define EDIT_HEIGHT 23
#define BUTTON_HEIGHT 25
#define OPTION_SIZE 17
#define OPTION_CIRCLE 13
#define LABEL_HEIGHT 17
#define SLIDER_HEIGHT 18
