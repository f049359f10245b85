// What colour is a pixel of the screen?
#pragma once

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

/// Asks for a new device context of the screen at every reading and releases none, up to a limit, so that
/// long picking does not use them all up. Windows takes them back when the program ends.
class ScreenPixels {
public:
    /// Any place on any monitor, in screen coordinates; what cannot be read is (255, 0, 0).
    Color at(POINT place);
    /// The monitors or their modes have changed: the next reading gets a context that knows of it.
    void renew();

private:
    static constexpr int mostContexts = 1000;

    HDC newest = nullptr;
    int contexts = 0;
};
