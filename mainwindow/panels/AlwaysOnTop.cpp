#include "mainwindow/panels/AlwaysOnTop.h"

#include "resources/resource.h"
#include "support/Messages.h"
#include "toolkit/forms/SystemMenu.h"

AlwaysOnTop::AlwaysOnTop(Form& form, CommandBar& commands) : form(form) {
    commands.bind(IDM_mnuSystemOnTop, this, &AlwaysOnTop::mnuSystemOnTop_Click);
}

void AlwaysOnTop::Prepare() { AddToSystemMenu(form.handle(), IDM_mnuSystemOnTop, messages::alwaysOnTop); }

void AlwaysOnTop::mnuSystemOnTop_Click() {
    isOnTop = !isOnTop;
    form.setOnTop(isOnTop);
    CheckInSystemMenu(form.handle(), IDM_mnuSystemOnTop, isOnTop);
}
