// How does a form offer a list?
#pragma once

#include <string_view>

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

class ListBox : public Control {
public:
    using Control::Control;

    Event<>
        Click;  ///< another row was selected, by the user or by setIndex; or the user clicked the current one

    void addItem(std::string_view text);

    /// The selected row from 0, or -1.
    int index() const { return static_cast<int>(send(LB_GETCURSEL)); }
    /// Selects a row, or none with -1; raises Click when the selection differs.
    void setIndex(int index);

private:
    void attached() override;
    void rescaled() override;
    void onCommand(int id, int code) override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool hasToldOfClick = false;
};
