#pragma once

#include "desktop/MsgBox.h"
#include <gtest/gtest.h>

/// The message about an editor that does not start.
inline void expectFailure(const MsgBox::Message& box)
{
    EXPECT_EQ(box.text, "A problem has been encountered while trying to launch Notepad.exe, the standard "
                        "text editor that ships with "
                        "Windows.\r\n"
                        "Make sure Notepad.exe is on your system's Path and that it works properly.");
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
    EXPECT_EQ(box.buttons, MsgButtons::Ok);
    EXPECT_EQ(box.title, applicationTitle);
}
