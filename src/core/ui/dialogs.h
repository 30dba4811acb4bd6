#pragma once
// The platform's dialogs behind one seam, so that tests can answer them.

#include <QString>

class QPrinter;
class QWidget;

namespace lumetra {

class Dialogs {
public:
    virtual ~Dialogs() = default;
    // MsgBox: "\r" in the text is a line break.
    virtual void messageBox(const QString &text);
    // GetOpenFolderItem / GetSaveFolderItem: an empty result is a cancel.
    virtual QString openFile(const QString &filter);
    virtual QString saveFile(const QString &filter, const QString &proposedName);
    // OpenPrinterDialog: false is a cancel.
    virtual bool printerDialog(QPrinter &printer);
};

Dialogs &dialogs();
// Replaces the dialogs (tests); nullptr restores the platform's.
void setDialogs(Dialogs *replacement);

} // namespace lumetra
