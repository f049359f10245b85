// What does the window of the marks' contrast do?
#pragma once

#include "mainwindow/panels/ColorMarks.h"
#include "pickers/ContrastGrid.h"
#include "pickers/SwatchWindow.h"

/// How well each mark's colour can be read on each other's; a left press on a cell selects its row's mark.
class frmContrast final : public SwatchWindow {
public:
    explicit frmContrast(ColorMarks& marks);

    /// Shows the marks as they are now, if the window is open.
    void ShowMarks();

private:
    void Form_Load();
    void grdContrast_Choose(int mark);

    ColorMarks& marks;
    ContrastGrid grdContrast;
};
