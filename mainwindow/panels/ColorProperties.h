// How does the user learn what is special about the marks' colours, and name the marks after them?
#pragma once

#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/EditState.h"
#include "support/AppState.h"
#include "toolkit/forms/Form.h"

/// The commands Colour Properties and Find JavaScript Names.
class ColorProperties {
public:
    ColorProperties(const Form& form, const AppState& state, EditState& edit, CommandBar& commands,
                    ColorMarks& marks);

private:
    void mnuHelpColorProperties_Click();
    void mnuEditFind_Click();

    void FillName(int mark);

    const Form& form;
    const AppState& state;
    EditState& edit;
    ColorMarks& marks;

    int renameAnswer = 0;
};
