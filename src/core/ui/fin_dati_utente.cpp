// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/fin_dati_utente.h"

#include "core/globali.h"
#include "core/ui/accessibile.h"
#include "core/ui/edit_field.h"
#include "core/ui/handler_guard.h"
#include "core/ui/look.h"
#include "core/user_data.h"

#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <array>

namespace lumetra {

namespace {

struct Etichetta {
    const char *name;
    int left, top, width;
    const char *text;
};

struct Campo {
    int index;
    int left, top, width;
};

} // namespace

fin_dati_utente::fin_dati_utente()
{
    setObjectName(QStringLiteral("fin_dati_utente"));
    setWindowTitle(QStringLiteral("senza titolo"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setFixedSize(512, 457);
    sfondo(this, QColor(0x99, 0x99, 0x99));
    setAttribute(Qt::WA_DeleteOnClose);

    auto *heading = new QLabel(QStringLiteral("Dati personali utente"), this);
    heading->setObjectName(QStringLiteral("StaticText12"));
    place(heading, 141, 128, 349, 20);
    heading->setFont(arial(14));
    coloreTesto(heading, Qt::black);

    const Etichetta labels[] = {
        {"StaticText6", 9, 160, 120, "Intestazione:"},    {"StaticText7", 9, 195, 120, "Indirizzo:"},
        {"StaticText8", 9, 230, 120, "C.A.P. e Città:"},  {"StaticText9", 89, 265, 40, "Tel.:"},
        {"StaticText10", 293, 265, 40, "Fax.:"},          {"StaticText11", 9, 300, 120, "em@il:"},
        {"StaticText13", 9, 333, 120, "Partita I.V.A.:"}, {"StaticText14", 9, 370, 120, "Codice Fiscale:"},
    };
    std::array<QLabel *, std::size(labels)> etichette{};
    for (size_t k = 0; k < std::size(labels); ++k) {
        const Etichetta &l = labels[k];
        auto *label = etichette[k] = new QLabel(QString::fromUtf8(l.text), this);
        label->setObjectName(QString::fromLatin1(l.name));
        place(label, l.left, l.top, l.width, 20);
        label->setFont(arial(14));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        coloreTesto(label, Qt::white);
    }

    const Campo fields[] = {
        {1, 141, 159, 349}, {2, 141, 194, 349}, {3, 141, 229, 349}, {4, 141, 264, 145},
        {5, 345, 264, 145}, {6, 141, 299, 349}, {7, 141, 334, 349}, {8, 141, 369, 349},
    };
    for (const auto &f : fields) {
        auto *edit = new EditLine(this);
        edit->setObjectName(QStringLiteral("EditFute%1").arg(f.index));
        place(edit, f.left, f.top, f.width, 22);
        edit->setFont(arial(14, true));
        QPalette pal = edit->palette();
        pal.setColor(QPalette::Text, QColor(0x00, 0x00, 0x80));
        pal.setColor(QPalette::Base, Qt::white);
        edit->setPalette(pal);
        EditFute[size_t(f.index)] = edit;
    }
    // Label k stands for field k + 1. The window's title says nothing, so a
    // screen reader speaks it by its heading.
    for (size_t k = 0; k < etichette.size(); ++k)
        nomina(etichette[k], EditFute[k + 1]);
    setAccessibleName(heading->text());
    // Tab order follows the indices.
    for (int i = 1; i < 8; ++i)
        setTabOrder(EditFute[size_t(i)], EditFute[size_t(i + 1)]);

    auto *separator = new QFrame(this);
    separator->setObjectName(QStringLiteral("Separator2"));
    separator->setFrameShape(QFrame::HLine);
    separator->setFrameShadow(QFrame::Sunken);
    place(separator, 20, 402, 472, 4);

    PushBreg = new QPushButton(QStringLiteral("Registra"), this);
    PushBreg->setObjectName(QStringLiteral("PushBreg"));
    place(PushBreg, 141, 419, 348, 24);
    PushBreg->setFont(arial(14, true));
    PushBreg->setAutoDefault(false);
    PushBreg->setDefault(false);
    connectHandler(PushBreg, &QPushButton::clicked, this, &fin_dati_utente::PushBreg_Action);

    if (QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void fin_dati_utente::Event_Open()
{
    const auto &utenza = globali().utenza;
    for (int i = 1; i <= 8; ++i)
        EditFute[size_t(i)]->setText(utenza[size_t(i)]);
}

void fin_dati_utente::ShowModal()
{
    setModal(true);
    exec();
}

void fin_dati_utente::Show()
{
    setModal(true);
    show();
    raise();
    activateWindow();
}

void fin_dati_utente::PushBreg_Action()
{
    Utenza nuova = globali().utenza; // index 0 keeps its value
    for (int i = 1; i <= 8; ++i)
        nuova[size_t(i)] = EditFute[size_t(i)]->text();
    registraUtenza(globali().utenza, nuova);
    emit registrato();
    done(QDialog::Accepted);
}

} // namespace lumetra
