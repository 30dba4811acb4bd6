// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/fin_avverti.h"

#include "core/globali.h"
#include "core/ui/handler_guard.h"
#include "core/ui/look.h"

#include <QLabel>
#include <QPushButton>

namespace lumetra {

fin_avverti::fin_avverti()
{
    setObjectName(QStringLiteral("fin_avverti"));
    setWindowTitle(QStringLiteral("fin_avverti"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setModal(true);
    setFixedSize(320, 130);
    sfondo(this, QColor(0xe6, 0xe6, 0xe6));
    setAttribute(Qt::WA_DeleteOnClose);

    StaticText2 = new QLabel(QStringLiteral("ATTENZIONE!"), this);
    StaticText2->setObjectName(QStringLiteral("StaticText2"));
    place(StaticText2, 90, 10, 140, 24);
    StaticText2->setFont(arial(18, true));
    StaticText2->setAlignment(Qt::AlignCenter);
    coloreTesto(StaticText2, QColor(0x80, 0x00, 0x00));

    StaticText1 = new QLabel(QStringLiteral("Non hai registrato le ultime modifiche,\ndesideri procedere?"), this);
    StaticText1->setObjectName(QStringLiteral("StaticText1"));
    place(StaticText1, 0, 40, 320, 40);
    StaticText1->setFont(arial(14, true));
    StaticText1->setAlignment(Qt::AlignCenter);
    coloreTesto(StaticText1, QColor(0x80, 0x80, 0x80));

    PushButton2 = new QPushButton(QStringLiteral("Annulla"), this);
    PushButton2->setObjectName(QStringLiteral("PushButton2"));
    place(PushButton2, 20, 95, 120, 22);
    PushButton2->setFont(arial(14, true));
    PushButton2->setDefault(true);
    connectHandler(PushButton2, &QPushButton::clicked, this, &fin_avverti::PushButton2_Action);

    PushButton1 = new QPushButton(QStringLiteral("Continua"), this);
    PushButton1->setObjectName(QStringLiteral("PushButton1"));
    place(PushButton1, 180, 95, 120, 22);
    PushButton1->setFont(arial(14, true));
    PushButton1->setAutoDefault(false);
    connectHandler(PushButton1, &QPushButton::clicked, this, &fin_avverti::PushButton1_Action);

    // The title is the class's name: a screen reader speaks the warning instead.
    setAccessibleName(StaticText2->text());
    setAccessibleDescription(StaticText1->text().replace(QLatin1Char('\n'), QLatin1Char(' ')));
}

void fin_avverti::ShowModal() { exec(); }

void fin_avverti::PushButton1_Action()
{
    globali().consenti = true;
    done(QDialog::Accepted);
}

void fin_avverti::PushButton2_Action()
{
    globali().consenti = false;
    done(QDialog::Accepted);
}

} // namespace lumetra
