#include "help/frmAbout.h"

#include "Addresses.h"
#include "help/Links.h"
#include "resources/resource.h"
#include "support/Reported.h"

frmAbout::frmAbout()
    : Form("frmAbout"),
      picInfo(*this, IDC_picInfo, IDI_huevox),
      cmdOK(*this, IDC_cmdOK),
      lblLink(*this, IDC_lblLink),
      lblMailLink(*this, IDC_lblMailLink),
      lblTitle(*this, IDC_lblTitle) {
    Load.bind(this, &frmAbout::Form_Load);
    Command.bind(this, &frmAbout::Form_Command);
    cmdOK.Click.bind(this, &frmAbout::cmdOK_Click);
    lblLink.Click.bind(this, &frmAbout::lblLink_Click);
    lblMailLink.Click.bind(this, &frmAbout::lblMailLink_Click);
}

void frmAbout::Form_Load() {
    constexpr int titleSize = 28;
    lblLink.setText(homePageAddress);
    lblMailLink.setText(mailAddress);
    lblTitle.setFont("Arial", titleSize);
}

void frmAbout::Form_Command(int command) {
    if (command == IDC_cmdCancel) cmdOK_Click();
}

void frmAbout::cmdOK_Click() { unload(); }

void frmAbout::lblLink_Click() {
    Reported(*this, messages::noBrowser, [this] { OpenInBrowser(lblLink.text()); });
}

void frmAbout::lblMailLink_Click() {
    Reported(*this, messages::noMail, [this] { OpenMail(lblMailLink.text()); });
}
