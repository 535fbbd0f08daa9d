#pragma once

class QApplication;
class QWidget;

/// The look of the whole program, once at its start: simplified Chinese faces by name, 宋体 mapped to one
/// that exists here, one style and one style sheet on every desktop.
void InstallSkin(QApplication& application);

/// Dresses one window in the common look: the grey ground RGB(223,223,223) of the style sheet.
void ApplyWindowSkin(QWidget* form);
