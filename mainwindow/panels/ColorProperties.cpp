#include "mainwindow/panels/ColorProperties.h"

#include <string_view>

#include "mainwindow/panels/ColorReport.h"
#include "resources/resource.h"
#include "support/Messages.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/FlagGuard.h"

ColorProperties::ColorProperties(const Form& form, const AppState& state, EditState& edit,
                                 CommandBar& commands, ColorMarks& marks)
    : form(form), state(state), edit(edit), marks(marks) {
    commands.bind(IDM_mnuHelpColorProperties, this, &ColorProperties::mnuHelpColorProperties_Click);
    commands.bind(IDM_mnuEditFind, this, &ColorProperties::mnuEditFind_Click);
}

void ColorProperties::mnuHelpColorProperties_Click() {
    // The mark that the user asked about, even if the selection changes while the box is open.
    const int mark = state.marks.selectedMark;
    const ColorReport report = ReportColor(marks.SampleColor(mark), marks.Name(mark));
    const auto show = [&](UINT buttons) {
        return MsgBox(&form, report.text, buttons | MB_ICONINFORMATION, messages::colorPropertiesTitle);
    };
    if (report.offeredName.empty()) {
        show(MB_OK);
        return;
    }
    renameAnswer = show(MB_YESNO);
    const Raised filling(edit.nameFillInProgress);
    if (renameAnswer == IDYES) marks.Rename(mark, report.offeredName);
}

void ColorProperties::mnuEditFind_Click() {
    {
        const Raised filling(edit.nameFillInProgress);
        for (int mark = 0; mark < markCount; ++mark) FillName(mark);
        Yield();
    }
    marks.WhitenNames();
}

void ColorProperties::FillName(int mark) {
    const std::string_view name = FindJavaScriptName(marks.SampleColor(mark));
    if (name == messages::notJavaScript) {
        marks.SetName(mark, name);
    } else if (name != marks.Name(mark)) {
        marks.Rename(mark, name);
    }
}
