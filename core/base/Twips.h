#pragma once

/// How many twips (1/1440 inch) a screen pixel stands for: what a screen of 96 dots an inch shows. It is
/// fixed, whatever the screen: forms are paper as well, and a column that is dragged on one workstation
/// has to print on another as it stood.
inline constexpr int TwipsPerPixel = 15;
