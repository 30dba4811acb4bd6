#pragma once
// The user's manual: an RTF file in a "Resources" folder beside the folder of
// the executable, as in an application bundle. It is read from the disk once a
// run; the help window parses it each time it opens.

#include <QByteArray>
#include <QString>

namespace lumetra {

struct IstruzioniState {
    bool loaded = false; // true from the first call of istruzioni() on
    QByteArray permaText; // the raw content of the manual file
};
// The module's globals; tests reset them.
IstruzioniState &x_istruzioni();

// The manual's bytes, read at the first call. A missing folder or file gives an
// empty text, and is not looked for again in this run.
QByteArray istruzioni();

// The folder that stands for the executable's; tests put it elsewhere, an empty
// text restores the real one.
void setIstruzioniExecutableFolder(const QString &folder);

} // namespace lumetra
