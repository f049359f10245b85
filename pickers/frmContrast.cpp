#include "pickers/frmContrast.h"

#include "resources/resource.h"

frmContrast::frmContrast(ColorMarks& marks)
    : SwatchWindow("frmContrast"), marks(marks), grdContrast(*this, IDC_grdContrast) {
    ContrastGrid::registerClass();
    Load.bind(this, &frmContrast::Form_Load);
    grdContrast.Choose.bind(this, &frmContrast::grdContrast_Choose);
}

void frmContrast::ShowMarks() {
    if (isLoaded()) grdContrast.show(LabelledMarks(marks.Shown()));
}

void frmContrast::Form_Load() { grdContrast.show(LabelledMarks(marks.Shown())); }

void frmContrast::grdContrast_Choose(int mark) { marks.Choose(mark); }
