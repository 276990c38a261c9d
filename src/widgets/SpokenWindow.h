#pragma once

/// Tells assistive programs that a child window shows as long as any part of it does. For Qt itself
/// (QAccessibleMdiSubWindow::state) a window is off the screen as soon as some of it reaches out of the area.
///
/// To be called before the first child window is made; once more does nothing.
void speakOfWindows();
