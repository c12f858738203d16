// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Leaves Return and Enter to the default button of the window while the focus is on `control`. Of
/// its own accord a control takes them on some desktops: there they press whatever has the focus.
void leaveReturnToWindow(QWidget& control);
