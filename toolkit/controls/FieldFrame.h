// What stands behind a label that looks like a field?
#pragma once

/// Registers the window class "FieldFrame": a bordered background in the colour of fields. It needs no
/// control.
void RegisterFieldFrame();
