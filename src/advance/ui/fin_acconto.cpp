// SPDX-License-Identifier: GPL-3.0-or-later
#include "advance/ui/fin_acconto.h"

#include "advance/advance.h"
#include "core/globali.h"
#include "core/text_functions.h"
#include "core/ui/accessibile.h"
#include "core/ui/edit_field.h"
#include "core/ui/handler_guard.h"
#include "core/ui/look.h"
#include "core/value_filter.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

namespace lumetra {

namespace {

const QColor kGrigio(0x4c, 0x4c, 0x4c);
const QColor kBordeaux(0x80, 0, 0);

QLabel *etichetta(QWidget *parent, const char *name, QRect geometry, const char *text, Qt::Alignment align,
                  const QColor &color)
{
    auto *l = new QLabel(QString::fromUtf8(text), parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setGeometry(geometry);
    l->setFont(arial(14, true));
    l->setAlignment(align | Qt::AlignTop);
    colore(l, QPalette::WindowText, color);
    return l;
}

EditLine *campo(QWidget *parent, int index, QRect geometry)
{
    auto *e = new EditLine(parent);
    e->setObjectName(QStringLiteral("EditQNL%1").arg(index));
    e->setGeometry(geometry);
    e->setFont(arial(14, true));
    e->setLimitText(30);
    e->setText(QStringLiteral("0"));
    colore(e, QPalette::Text, kBordeaux);
    colore(e, QPalette::Base, Qt::white);
    return e;
}

} // namespace

fin_acconto::fin_acconto() : QDialog(QApplication::activeWindow())
{
    setObjectName(QStringLiteral("fin_acconto"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setModal(true);
    setFixedSize(300, 260);
    setWindowTitle(QStringLiteral("Computa Acconto"));

    StaticText6 = etichetta(this, "StaticText6", {10, 10, 280, 38},
                            "Inserire il totale lordo per\ncalcolare l'acconto o viceversa", Qt::AlignHCenter, kGrigio);
    StaticText1 = etichetta(this, "StaticText1", {0, 61, 140, 20}, "Acconto €", Qt::AlignRight, kGrigio);
    EditQNL[0] = campo(this, 0, {150, 60, 140, 22});
    StaticText2 = etichetta(this, "StaticText2", {0, 101, 140, 20}, "4% C.P.A. €", Qt::AlignRight, kGrigio);
    StaticTcpa = etichetta(this, "StaticTcpa", {154, 101, 140, 20}, "0", Qt::AlignLeft, kBordeaux);
    StaticTiva1 = etichetta(this, "StaticTiva1", {40, 141, 100, 20}, "21% I.V.A. €", Qt::AlignRight, kGrigio);
    StaticTiva2 = etichetta(this, "StaticTiva2", {154, 141, 140, 20}, "0", Qt::AlignLeft, kBordeaux);
    Line1 = new QFrame(this);
    Line1->setObjectName(QStringLiteral("Line1"));
    Line1->setGeometry(20, 170, 270, 1);
    Line1->setFrameShape(QFrame::NoFrame);
    Line1->setAutoFillBackground(true);
    colore(Line1, QPalette::Window, Qt::black);
    StaticText5 = etichetta(this, "StaticText5", {0, 181, 140, 20}, "TOTALE LORDO €", Qt::AlignRight, kGrigio);
    EditQNL[1] = campo(this, 1, {150, 180, 140, 22});
    nomina(StaticText1, EditQNL[0]);
    nomina(StaticText5, EditQNL[1]);
    PushButton1 = new QPushButton(QStringLiteral("Inserisci"), this);
    PushButton1->setObjectName(QStringLiteral("PushButton1"));
    PushButton1->setGeometry(20, 220, 260, 22);
    PushButton1->setFont(arial(14, true));
    PushButton1->setDefault(true);

    setTabOrder(EditQNL[0], EditQNL[1]);
    setTabOrder(EditQNL[1], PushButton1);

    // Connected after the fields have their first text, which computes nothing.
    for (int i = 0; i < 2; ++i) {
        connectHandler(EditQNL[size_t(i)], &EditLine::TextChange, this, [this, i] { EditQNL_TextChange(i); });
        EditQNL[size_t(i)]->keyDown = [this, i](QKeyEvent *key) { return EditQNL_KeyDown(i, key); };
    }
    connectHandler(PushButton1, &QPushButton::clicked, this, &fin_acconto::PushButton1_Action);
}

void fin_acconto::Event_Open()
{
    automat = true;
    auto &g = globali();
    g.acconto_calcolato[0] = QStringLiteral("0");
    StaticTiva1->setEnabled(g.iva);
    StaticTiva2->setEnabled(g.iva);
    if (!g.iva)
        StaticTiva2->setText(QStringLiteral("non imponibile"));
    // The first field takes the keyboard with its text selected, so what is
    // typed replaces the "0".
    EditQNL[0]->setFocus();
    EditQNL[0]->selectAll();
}

bool fin_acconto::EditQNL_KeyDown(int index, QKeyEvent *key)
{
    if (tastoSelezionaTutto(key))
        EditQNL[size_t(index)]->selectAll();
    automat = false;
    return false;
}

void fin_acconto::EditQNL_TextChange(int index)
{
    auto &g = globali();
    if (!automat) {
        EditLine *campo = EditQNL[size_t(index)];
        if (const auto filtrato = filtraValore(campo->Text())) {
            campo->setText(*filtrato);
            campo->end(false);
        }
        // Each computation writes the other field, and starts none there; the
        // flag falls back however the computation ends.
        const QScopedValueRollback<bool> calcolo(automat, true);
        const TestiAcconto t = testiAcconto(index, campo->Text(), g.iva);
        StaticTcpa->setText(t.cpa);
        StaticTiva2->setText(t.iva);
        EditQNL[index == 1 ? 0 : 1]->setText(t.altro);
    }
    g.acconto_calcolato[0] = EditQNL[0]->Text();
}

void fin_acconto::PushButton1_Action() { close(); }

QString fin_acconto::ShowModal()
{
    exec();
    return globali().acconto_calcolato[0];
}

} // namespace lumetra
