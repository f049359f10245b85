// What is special about a colour, and what could a mark of that colour be called?
#pragma once

#include <string>
#include <string_view>

#include "core/Color.h"

struct ColorReport {
    std::string text;              ///< ends in a question when a name is offered
    std::string_view offeredName;  ///< "" when there is none, or when the mark has it already
};

/// Whether the colour is websafe, failsafe and a JavaScript colour. name is what its mark is called now.
ColorReport ReportColor(const Color& color, std::string_view name);

/// What Find JavaScript Names calls a mark of that colour: its JavaScript name, or the placeholder for
/// colours without one. The first name, aliceblue, is never found.
std::string_view FindJavaScriptName(const Color& color);
