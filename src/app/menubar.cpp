// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/menubar.h"

#include "app/app.h"
#include "core/ui/handler_guard.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace lumetra {

namespace {

QAction *addItem(QMenu *menu, const char *name, const QString &text, const QKeySequence &shortcut = {},
                 QAction::MenuRole role = QAction::NoRole)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    action->setMenuRole(role);
    return action;
}

void addNamedSeparator(QMenu *menu, const char *name)
{
    menu->addSeparator()->setObjectName(QString::fromLatin1(name));
}

// The standard editing of the focused text field.
template <class LineFn, class TextFn>
void onFocusedField(LineFn onLine, TextFn onText)
{
    QWidget *w = QApplication::focusWidget();
    if (auto *line = qobject_cast<QLineEdit *>(w))
        onLine(line);
    else if (auto *text = qobject_cast<QTextEdit *>(w))
        onText(text);
    else if (auto *plain = qobject_cast<QPlainTextEdit *>(w))
        onText(plain);
}

} // namespace

MenuBar1::MenuBar1(QWidget *parent) : QMenuBar(parent)
{
    setObjectName(QStringLiteral("MenuBar1"));
    Untitled0();
    Untitled1();
    Untitled2();
    for (QMenu *menu : {MenuFile, MenuModifica, AiutoMenu})
        connectHandler(menu, &QMenu::aboutToShow, this, [] {
            if (App *app = App::instance())
                app->Event_EnableMenuItems();
        });
}

void MenuBar1::Untitled0()
{
    MenuFile = addMenu(QStringLiteral("Archivio"));
    MenuFile->setObjectName(QStringLiteral("MenuFile"));
    App *app = App::instance();
    connectHandler(addItem(MenuFile, "ArchivioNuovo", QStringLiteral("Nuovo"), QKeySequence(QStringLiteral("Ctrl+N"))),
                   &QAction::triggered, app, &App::ArchivioNuovo_Action);
    connectHandler(addItem(MenuFile, "ArchivioApri", QStringLiteral("Apri.."), QKeySequence(QStringLiteral("Ctrl+O"))),
                   &QAction::triggered, app, &App::ArchivioApri_Action);
    addNamedSeparator(MenuFile, "UntitledSeparator");
    connectHandler(
        addItem(MenuFile, "ArchivioRegistra", QStringLiteral("Registra"), QKeySequence(QStringLiteral("Ctrl+S"))),
        &QAction::triggered, app, &App::ArchivioRegistra_Action);
    connectHandler(addItem(MenuFile, "ArchivioRegistracome", QStringLiteral("Registra come..")), &QAction::triggered,
                   app, &App::ArchivioRegistracome_Action);
    addNamedSeparator(MenuFile, "UntitledSeparator1");
    connectHandler(addItem(MenuFile, "ArchivioDatiUtente", QStringLiteral("Dati Utente.."),
                           QKeySequence(QStringLiteral("Ctrl+U"))),
                   &QAction::triggered, app, &App::ArchivioDatiUtente_Action);
    connectHandler(addItem(MenuFile, "FileQuit", QStringLiteral("Esci"), QKeySequence(QStringLiteral("Ctrl+Q")),
                           QAction::QuitRole),
                   &QAction::triggered, app, &App::FileQuit_Action);
}

void MenuBar1::Untitled1()
{
    MenuModifica = addMenu(QStringLiteral("Modifica"));
    MenuModifica->setObjectName(QStringLiteral("MenuModifica"));
    connectHandler(
        addItem(MenuModifica, "ModificaAnnulla", QStringLiteral("Annulla"), QKeySequence(QStringLiteral("Ctrl+Z"))),
        &QAction::triggered, this, [] { onFocusedField([](auto *f) { f->undo(); }, [](auto *f) { f->undo(); }); });
    addNamedSeparator(MenuModifica, "UntitledMenu1");
    connectHandler(
        addItem(MenuModifica, "ModificaTaglia", QStringLiteral("Taglia"), QKeySequence(QStringLiteral("Ctrl+X"))),
        &QAction::triggered, this, [] { onFocusedField([](auto *f) { f->cut(); }, [](auto *f) { f->cut(); }); });
    connectHandler(
        addItem(MenuModifica, "ModificaCopia", QStringLiteral("Copia"), QKeySequence(QStringLiteral("Ctrl+C"))),
        &QAction::triggered, this, [] { onFocusedField([](auto *f) { f->copy(); }, [](auto *f) { f->copy(); }); });
    connectHandler(
        addItem(MenuModifica, "ModificaIncolla", QStringLiteral("Incolla"), QKeySequence(QStringLiteral("Ctrl+V"))),
        &QAction::triggered, this, [] { onFocusedField([](auto *f) { f->paste(); }, [](auto *f) { f->paste(); }); });
    connectHandler(addItem(MenuModifica, "ModificaCancella", QStringLiteral("Elimina")), &QAction::triggered, this, [] {
        onFocusedField(
            [](QLineEdit *f) {
                if (f->hasSelectedText())
                    f->del();
            },
            [](auto *f) { f->textCursor().removeSelectedText(); });
    });
    addNamedSeparator(MenuModifica, "UntitledMenu0");
    connectHandler(addItem(MenuModifica, "ModificaSelezionaTutto", QStringLiteral("Seleziona tutto"),
                           QKeySequence(QStringLiteral("Ctrl+A"))),
                   &QAction::triggered, this,
                   [] { onFocusedField([](auto *f) { f->selectAll(); }, [](auto *f) { f->selectAll(); }); });
}

void MenuBar1::Untitled2()
{
    AiutoMenu = addMenu(QStringLiteral("Aiuto"));
    AiutoMenu->setObjectName(QStringLiteral("AiutoMenu"));
    App *app = App::instance();
    connectHandler(
        addItem(AiutoMenu, "AiutoMostraaiuto", QStringLiteral("Mostra aiuto"), QKeySequence(QStringLiteral("Ctrl+?"))),
        &QAction::triggered, app, &App::AiutoMostraaiuto_Action);
    connectHandler(addItem(AiutoMenu, "AiutoInfo", QStringLiteral("Info.."), {}, QAction::AboutRole),
                   &QAction::triggered, app, &App::AiutoInfo_Action);
}

QAction *MenuBar1::item(const QString &name) const { return findChild<QAction *>(name); }

} // namespace lumetra
