#pragma once

#include <QString>

#include <vector>

/// One button of the toolbar, from left to right; separators stand between them.
struct ToolbarButton {
    QString key;
    QString toolTip;
    QString shortcut;
};

const std::vector<ToolbarButton>& Toolbar();
