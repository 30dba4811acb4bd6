// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What assistive tools (screen readers) are told of the program's controls:
// each control a user can reach has a name to speak, and that name says what
// the control is for, never only what it holds.

class QLabel;
class QWidget;

namespace lumetra {

// The label that stands for a control names it: the label becomes the
// control's buddy, which assistive tools take as "labelled by", and its text,
// line breaks as blanks, the control's accessible name (check boxes and menus
// do not read a buddy).
void nomina(QLabel *etichetta, QWidget *controllo);

// Installs the one accessible kind of our own: a menu (QComboBox) whose
// accessible name the program set is spoken by that name. On Linux Qt speaks
// every menu by its current entry, so "Tipo di compenso:" would be read as
// "SELEZIONA".
void installaAccessibilita();

} // namespace lumetra
