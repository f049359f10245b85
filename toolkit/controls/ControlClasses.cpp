#include "toolkit/controls/ControlClasses.h"

#include "toolkit/controls/CellStrip.h"
#include "toolkit/controls/FieldFrame.h"
#include "toolkit/controls/LinkLabel.h"
#include "toolkit/controls/PictureBox.h"
#include "toolkit/platform/Platform.h"

void RegisterControlClasses() {
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    PictureBox::registerClass();
    CellStrip::registerClass();
    LinkLabel::registerClass();
    RegisterFieldFrame();
}
