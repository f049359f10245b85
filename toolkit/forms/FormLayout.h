// Where do a form's window and controls stand at every scaling?
#pragma once

#include <vector>

#include "toolkit/forms/DialogTemplate.h"
#include "toolkit/forms/FormWindow.h"
#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Twips.h"

/// The places that a template gives, in pixels of the monitor that the window is on. Edges are scaled, not
/// sizes, so that what meets at 96 DPI meets at every DPI.
class FormLayout {
public:
    explicit FormLayout(int twipsPerUnit) : twipsPerUnit(twipsPerUnit) {}

    /// A window of that template will be created on a monitor of that scaling.
    void begin(const DialogTemplate& layout, int dpi);
    /// The window has been created. Takes the scaling of its monitor.
    void attach(HWND form);

    int dpi() const { return scaling; }
    /// The size of the window with its frame.
    SIZE frameSize() const { return frameSize(scaling); }
    SIZE frameSize(int dpi) const;

    /// Creates a control at its place. Returns nullptr when Windows refuses.
    HWND create(HWND parent, const TemplateItem& item);

    /// Changes the scaling: moves everything to its place, and the window's top left to corner.
    void rescale(int dpi, const POINT& corner);

    /// Restores the template's size if the window has been given another one.
    void fit() const;

private:
    struct Placed {
        HWND window;
        Area units;
    };

    int fromUnits(int units, int dpi) const { return PixelsFromTwips(units * twipsPerUnit, dpi); }
    RECT placeOf(const Area& units, HWND parent) const;

    int twipsPerUnit;
    FrameStyle style;
    int scaling = USER_DEFAULT_SCREEN_DPI;
    HWND window = nullptr;
    int width = 0;
    int height = 0;
    std::vector<Placed> controls;
};
