// How does a palette window come to the screen, and where?
#pragma once

#include <optional>
#include <span>

#include "toolkit/Form.h"

/// A small window of swatches, whose template is in twips. While the program runs it comes back to where the
/// user has put it.
class SwatchWindow : public Form {
public:
    /// Brings the window forward; loads it before when it is not on the screen, beside the others.
    void open(std::span<const HWND> others);

protected:
    explicit SwatchWindow(const char* name);

private:
    void Form_Activate();
    void Form_Unload();
    Area choosePlace(std::span<const HWND> others) const;

    std::optional<Area> lastPlace;
    std::optional<Area> newPlace;  ///< until the window is first activated
};
