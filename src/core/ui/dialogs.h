// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The system's dialogs behind one seam, so that tests can answer them.

#include <QString>

class QPrinter;
class QWidget;

namespace lumetra {

class Dialogs {
public:
    virtual ~Dialogs() = default;
    // A message with an "OK" button; "\r" in the text is a line break.
    virtual void messageBox(const QString &text);
    // The file chosen to open or to save to; an empty result is a cancel. They
    // open in the folder of the current bill, else in the last one used.
    virtual QString openFile(const QString &filter);
    virtual QString saveFile(const QString &filter, const QString &proposedName);
    // The printer chosen; false is a cancel.
    virtual bool printerDialog(QPrinter &printer);
};

// Where the file dialogs open: the folder of the current bill, else the last
// folder a file was chosen in, else the home folder.
QString dialogFolder();
// Notes the folder of a file the user chose; an empty path notes nothing.
QString rememberFolder(const QString &path);

Dialogs &dialogs();
// Replaces the dialogs (tests); nullptr restores the system's.
void setDialogs(Dialogs *replacement);

} // namespace lumetra
