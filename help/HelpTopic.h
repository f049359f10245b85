// Which page of the help does a command show?
#pragma once

#include "help/HTMLHelp.h"

class Form;

inline constexpr const char* welcomeTopic = "huevox1.htm";
inline constexpr const char* customFormatTopic = "huevox10.htm";

/// Shows a page of the help file that lies beside the program, or says over form that it cannot.
void ShowHelpTopic(HTMLHelp& help, const char* topic, const Form& form);
