// What can happen to a window of the program?
#pragma once

#include <string>

#include "toolkit/forms/Event.h"
#include "toolkit/platform/Platform.h"

struct FormEvents {
    Event<> Load;
    /// After Windows' own activation, or before the click that activates; never while loading.
    Event<> Activate;
    Event<> Deactivate;        ///< at once
    Event<bool&> QueryUnload;  ///< before the form is unloaded; setting the flag keeps it
    Event<> Unload;
    Event<> DisplayChange;  ///< the monitors or their modes have changed
    Event<int> Command;     ///< a menu item or a shortcut was chosen
    /// A key or a turn of the wheel, before shortcuts, menus and controls get it; setting the flag keeps it
    /// from them.
    Event<const MSG&, bool&> InputPreview;
    Event<const std::string&> FileDrop;  ///< the whole path of the first file that was dropped
};
