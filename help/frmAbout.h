// What does the about box do?
#pragma once

#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/IconBox.h"
#include "toolkit/controls/Label.h"
#include "toolkit/controls/LinkLabel.h"
#include "toolkit/forms/Form.h"

/// Says what the program is, who made it and where there is more. Enter, Escape and the close box mean OK.
class frmAbout final : public Form {
public:
    frmAbout();

private:
    void Form_Load();
    void Form_Command(int command);
    void cmdOK_Click();
    void lblLink_Click();
    void lblMailLink_Click();

    IconBox picInfo;
    Button cmdOK;
    LinkLabel lblLink;
    LinkLabel lblMailLink;
    Label lblTitle;
};
