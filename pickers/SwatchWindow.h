// How does a palette window open, and where?
#pragma once

#include <optional>
#include <span>

#include "toolkit/forms/Form.h"

/// A small window of swatches, whose template is in twips. While the program runs, it reopens where
/// the user left it.
class SwatchWindow : public Form {
public:
    /// Brings the window to the front; if it is not on the screen, first loads it beside its neighbors.
    void open(std::span<const HWND> neighbors);

protected:
    explicit SwatchWindow(const char* name);

    /// Escape closes the window.
    virtual void Form_Command(int command);

private:
    void Form_Activate();
    void Form_Unload();
    Area firstPlace(const SIZE& frame) override;
    Area choosePlace(int width, int height) const;

    std::span<const HWND> others;  ///< the windows to open beside, while it opens
    std::optional<Area> lastPlace;
    std::optional<Area> newPlace;  ///< until the window is first activated
};
