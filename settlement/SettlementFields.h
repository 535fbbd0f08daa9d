#pragma once

class QWidget;
struct Settlement;

// A settlement and the text boxes of a window, by the boxes' names. What the window holds in another way
// (the lot's key, its store, the user) is left alone.

/// Takes over what the boxes say. @throws TypeMismatchError for a figure left blank, which is no number
void ReadSettlementFields(const QWidget* form, Settlement& settlement);

/// Puts a settlement into the boxes, each write as if typed: a fee works the net out, a rate its fee.
/// @throws what the fields' Change handlers throw
void ShowSettlementFields(QWidget* form, const Settlement& settlement);
