// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/dialogs.h"

#include "core/globali.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

namespace lumetra {

namespace {
Dialogs g_platform;
Dialogs *g_current = &g_platform;
QString g_lastFolder;
} // namespace

QString dialogFolder()
{
    const QString &bill = globali().file_attuale;
    for (const QString &folder : {bill.isEmpty() ? QString() : QFileInfo(bill).absolutePath(), g_lastFolder})
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    return QDir::homePath();
}

QString rememberFolder(const QString &path)
{
    if (!path.isEmpty())
        g_lastFolder = QFileInfo(path).absolutePath();
    return path;
}

void Dialogs::messageBox(const QString &text)
{
    QString shown = text;
    shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Lumetra"), shown, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.exec();
}

QString Dialogs::openFile(const QString &filter)
{
    return rememberFolder(
        QFileDialog::getOpenFileName(QApplication::activeWindow(), QString(), dialogFolder(), filter));
}

QString Dialogs::saveFile(const QString &filter, const QString &proposedName)
{
    QFileDialog dialog(QApplication::activeWindow(), QString(), dialogFolder(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(proposedName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return rememberFolder(dialog.selectedFiles().constFirst());
}

bool Dialogs::printerDialog(QPrinter &printer)
{
    QPrintDialog dialog(&printer, nullptr);
    return dialog.exec() == QDialog::Accepted;
}

Dialogs &dialogs() { return *g_current; }

void setDialogs(Dialogs *replacement) { g_current = replacement ? replacement : &g_platform; }

} // namespace lumetra
