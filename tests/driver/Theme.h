// How does a test give all programs the colours of another theme?
#pragma once

#include <ostream>
#include <vector>

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

struct Theme {
    const char* name;
    Color ground;
    Color text;
    Color grayed;
    Color selected;
    Color selectedText;
    Color link;
};

/// For the name of a test.
inline void PrintTo(const Theme& theme, std::ostream* stream) { *stream << theme.name; }

extern const Theme blackTheme;
extern const Theme whiteTheme;

/// Changes the system's colours, for this program and those that start now, until the value ends.
class SystemColors {
public:
    SystemColors();
    SystemColors(const SystemColors&) = delete;
    SystemColors& operator=(const SystemColors&) = delete;
    ~SystemColors();

    void use(const Theme& theme) const;

private:
    std::vector<int> indexes;
    std::vector<COLORREF> before;
};
