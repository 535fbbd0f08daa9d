#pragma once

class QApplication;
class QWidget;

/// Fonts of the whole program: simplified Chinese faces by name, 宋体 mapped to one that exists here.
void InstallFonts(QApplication& application);

/// The common look of a window: the grey ground, white fields, locked fields grey, the focus ringed.
void ApplyWindowSkin(QWidget* form);
