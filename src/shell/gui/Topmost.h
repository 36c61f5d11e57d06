#pragma once

class QWidget;

// Keeps a window above the others (an editor the user works beside, the alarm clock), or lets
// it go back among them, where it is and as large as it is. A child window of the main frame
// stays above its sibling windows; a free window above all windows of the desktop.
void MakeMeTopmost(QWidget* window);
void MakeMeNoTopmost(QWidget* window);
