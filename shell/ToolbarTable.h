#pragma once

#include "core/forms/Form.h"

#include <QString>

#include <vector>

/// One button of the toolbar, from left to right.
struct ToolbarButton {
    int position; ///< in the toolbar, counted from 1 with the separators that stand between the buttons
    QString key;
    QString toolTip; ///< as the status bar repeats it; on the screen the shortcut stands behind it
    QString shortcut;
    void (Form::*action)() = nullptr; ///< asked of the window that the toolbar acts on; none: frmMain's own
};

const std::vector<ToolbarButton>& Toolbar();
