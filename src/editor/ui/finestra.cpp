// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/finestra.h"

#include "core/globali.h"
#include "core/quit.h"
#include "core/text_functions.h"
#include "core/ui/accessibile.h"
#include "core/ui/edit_field.h"
#include "core/ui/handler_guard.h"
#include "core/ui/look.h"
#include "core/value_filter.h"
#include "editor/bill.h"
#include "editor/categories.h"
#include "editor/listing.h"
#include "editor/ui/listbox.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QMimeData>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace lumetra {

namespace {

// Help tags are written with character 13 for a line break.
QString tag(const char *text)
{
    QString t = QString::fromUtf8(text);
    t.replace(QChar(13), QLatin1Char('\n'));
    return t;
}

QLabel *statico(QWidget *parent, const char *name, QRect geometry, const char *text, QRgb color, bool bold = false,
                int size = 14)
{
    auto *l = new QLabel(parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setGeometry(geometry);
    l->setText(tag(text));
    l->setFont(arial(size, bold));
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    colore(l, QPalette::WindowText, QColor(color));
    return l;
}

EditText *campoTesto(QWidget *parent, const char *name, QRect geometry, int limit, QRgb text, QRgb base)
{
    auto *e = new EditText(parent);
    e->setObjectName(QString::fromLatin1(name));
    e->setGeometry(geometry);
    e->setLimitText(limit);
    e->setFont(arial(12, true));
    e->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    e->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    e->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    colore(e, QPalette::Text, QColor(text));
    colore(e, QPalette::Base, QColor(base));
    return e;
}

EditLine *campoRiga(QWidget *parent, const char *name, QRect geometry, int limit)
{
    auto *e = new EditLine(parent);
    e->setObjectName(QString::fromLatin1(name));
    e->setGeometry(geometry);
    e->setLimitText(limit);
    e->setFont(arial(14));
    return e;
}

QComboBox *menu(QWidget *parent, const char *name, QRect geometry)
{
    auto *m = new QComboBox(parent);
    m->setObjectName(QString::fromLatin1(name));
    m->setGeometry(geometry);
    m->setFont(arial(14));
    m->setMaxVisibleItems(20);
    return m;
}

QCheckBox *casella(QWidget *parent, const char *name, QRect geometry)
{
    auto *c = new QCheckBox(parent);
    c->setObjectName(QString::fromLatin1(name));
    c->setGeometry(geometry);
    c->setChecked(true);
    return c;
}

QPushButton *pulsante(QWidget *parent, const char *name, QRect geometry, const char *text)
{
    auto *b = new QPushButton(QString::fromUtf8(text), parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setGeometry(geometry);
    b->setFont(arial(14, true));
    b->setAutoDefault(false);
    return b;
}

Listbox *lista(QWidget *parent, const char *name, QRect geometry, const QStringList &headings, const QList<int> &widths)
{
    auto *l = new Listbox(parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setGeometry(geometry);
    l->setFont(arial(12));
    l->horizontalHeader()->setFont(arial(12, true));
    l->setColonne(headings, widths);
    return l;
}

} // namespace

finestra::finestra()
{
    setObjectName(QStringLiteral("finestra"));
    m_area = new QWidget(this);
    m_area->setObjectName(QStringLiteral("area"));
    m_area->setFixedSize(1004, 690);
    m_area->setAutoFillBackground(true);
    QPalette pal = m_area->palette();
    pal.setColor(QPalette::Window, QColor(0x3b, 0x44, 0x59));
    m_area->setPalette(pal);
    setCentralWidget(m_area);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint
                   | Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    creaControlli();
    nominaControlli();
    collegaHandler();
    ordinaTabulazione();
    setAcceptDrops(true);
    installEventFilter(this);
    for (QWidget *child : findChildren<QWidget *>())
        child->installEventFilter(this);
}

void finestra::creaControlli()
{
    QWidget *a = m_area;

    Rectangle1 = new QWidget(a);
    Rectangle1->setObjectName(QStringLiteral("Rectangle1"));
    Rectangle1->setGeometry(0, 398, 1005, 292);
    Rectangle1->setAutoFillBackground(true);
    colore(Rectangle1, QPalette::Window, QColor(0x55, 0x6b, 0x98));

    const QRgb giallo = qRgb(0xff, 0xff, 0x66);
    const QRgb grigio = qRgb(0xe6, 0xe6, 0xe6);
    const QRgb bianco = qRgb(0xff, 0xff, 0xff);

    StaticText10 = statico(a, "StaticText10", {10, 8, 78, 20}, "Assistito:", giallo, true);
    StaticText11 = statico(a, "StaticText11", {10, 28, 78, 20}, "0 / 200", grigio);
    StaticText13 = statico(a, "StaticText13", {10, 50, 78, 24}, "caratteri\rmax.", grigio, true, 10);
    EditField2 = campoTesto(a, "EditField2", {90, 8, 250, 88}, 200, qRgb(0x80, 0, 0), qRgb(0xff, 0xff, 0xe6));
    EditField2->setToolTip(tag("Inserire i dati dell'assistito,\rsi consiglia di usare gli \"a capo\".\rEsempio:\r"
                               "Spett.le\rComune di Siracusa\rPiazza Duomo, 1\rP.IVA.: 0000000000\r"
                               "C.Fiscale: 0000000000"));
    StaticText1 = statico(a, "StaticText1", {355, 9, 140, 20}, "Intestazione causa:", giallo, true);
    StaticText2 = statico(a, "StaticText2", {355, 29, 140, 20}, "0 / 280", grigio);
    StaticText12 = statico(a, "StaticText12", {355, 51, 140, 24}, "caratteri\rmax.", grigio, true, 10);
    EditField1 = campoTesto(a, "EditField1", {500, 8, 493, 88}, 280, qRgb(0, 0, 0x80), qRgb(0xff, 0xff, 0xe6));
    EditField1->setToolTip(tag("Inserire l'intestazione della causa, o della fattura.\rEsempio:\r"
                               "Causa Comune di Milano contro Tizio e Caio.\rOggetto: Causa etc. etc."));

    StaticText5 = statico(a, "StaticText5", {10, 106, 140, 20}, "Valore controversia €:", giallo);
    PopImport = menu(a, "PopImport", {160, 104, 180, 22});
    PopImport->addItems(vociImporto());
    PopImport->setCurrentIndex(0);
    PopImport->setToolTip(tag("Scegliere \"Prestabilito\" per inserire un valore conosciuto in Euro.\r"
                              "Scegliere \"Indeterminabile\" se il valore non è conosciuto.\r"
                              "Scegliere \"Importante\" se il valore non è conosciuto, ma la causa è di particolare "
                              "importanza."));
    StaticText6 = statico(a, "StaticText6", {355, 106, 140, 20}, "Importo in €:", giallo);
    EditQuantum = campoRiga(a, "EditQuantum", {500, 104, 180, 22}, 30);
    colore(EditQuantum, QPalette::Text, QColor(0, 0, 0));
    colore(EditQuantum, QPalette::Base, QColor(0xff, 0xff, 0xff));
    EditQuantum->setToolTip(tag("Inserire il valore in Euro della controversia,\r"
                                "o scegliere, invece di \"Prestabilito\",\r"
                                "il valore \"Indeterminabile\" o \"Importante\"."));
    // In the free space at the right of the value, hidden while its two readings agree.
    StaticAvviso = statico(a, "StaticAvviso", {690, 101, 305, 30}, "", giallo, true, 11);
    StaticAvviso->hide();

    Listbox2 = lista(a, "Listbox2", {11, 134, 984, 226},
                     {QStringLiteral("Rif."), QStringLiteral("Voce"), QStringLiteral("Coefficiente"),
                      QStringLiteral("Quantità"), QStringLiteral("Importo"), QStringLiteral("Totale")},
                     {28, 580, 90, 90, 90, 90});
    Listbox2->setToolTip(tag("In questa finestra sono elencate le voci della parcella.\r"
                             "Per aggiungere una voce, effettuare una ricerca nella parte inferiore di questa "
                             "finestra.\r"
                             "E' possibile cambiare il nome di una voce aggiunta facendo doppio click sul nome.\r"
                             "E' possibile cambiare la quantità (moltiplicatore) di una voce.\r"
                             "Per eliminare una voce, deselezionare il check-box accanto all'importo."));

    StaticText14 = statico(a, "StaticText14", {11, 369, 110, 20}, "Applica IVA 21%", giallo);
    checkiva = casella(a, "checkiva", {128, 369, 20, 20});
    checkiva->setToolTip(tag("Selezionare questa opzione per applicare l'I.V.A.;\r"
                             "Deselezionare se l'imposta non è applicabile,\rai sensi dell'art.1, c.100 L.244/2007."));
    PushCrea[1] = pulsante(a, "PushCrea1", {160, 367, 180, 22}, "Crea Fattura");
    PushCrea[1]->setToolTip(tag("Crea la fattura da copiare, stampare, registrare o esportare su Microsoft Word.\r"
                                "La fattura contiene il riepilogo delle voci."));
    StaticText15 = statico(a, "StaticText15", {355, 369, 100, 20}, "Ritenuta 20%", giallo);
    checkrite = casella(a, "checkrite", {469, 369, 20, 20});
    checkrite->setToolTip(tag("Selezionare questa opzione per applicare la ritenuta d'acconto (deselezionare per "
                              "fatturare a privati)."));
    PushCrea[0] = pulsante(a, "PushCrea0", {500, 368, 493, 22}, "Crea Nota Spese - Competenze");
    PushCrea[0]->setToolTip(tag("Crea la nota spese da copiare, stampare, registrare o esportare su Microsoft "
                                "Word.\rLa nota spese-competenze contiene i conteggi di tutte le voci."));

    StaticText3 = statico(a, "StaticText3", {11, 407, 140, 20}, "Tipo di compenso:", bianco);
    PopCatA = menu(a, "PopCatA", {161, 405, 180, 22});
    PopCatA->addItems(vociCategoria());
    // The divider is drawn as a line and can't be picked.
    PopCatA->setItemData(1, QStringLiteral("separator"), Qt::AccessibleDescriptionRole);
    PopCatA->setItemData(1, 0, Qt::UserRole - 1); // the item flags of the menu's model
    PopCatA->setCurrentIndex(0);
    PopCatA->setToolTip(tag("Scegliere la categoria principale del tipo di compenso, secondo il tariffario.\r"
                            "Per creare una fattura di acconto, o per immettere in elenco una voce di acconto già "
                            "percepito,\rscegliere la voci \"Acconti\"."));
    StaticTextPop = statico(a, "StaticTextPop", {356, 407, 140, 20}, "Sotto-Categoria:", bianco);
    PopCatB = menu(a, "PopCatB", {501, 405, 494, 22});
    PopCatB->setEnabled(false);
    PopCatB->setToolTip(tag("Scegliere la sotto-categoria in base alla categoria principale prescelta.\r"
                            "Se la categoria non è prevista, scegliere \"Altro\"."));
    StaticText4 = statico(a, "StaticText4", {11, 434, 140, 20}, "RICERCA VOCE", bianco, true);
    EditCerca = campoRiga(a, "EditCerca", {161, 432, 180, 22}, 80);
    EditCerca->setEnabled(false);
    EditCerca->setToolTip(tag("Immettere un testo in questo campo, dopo aver scelto tipo di compenso (menu qui "
                              "sopra)\re sotto-categoria, per eseguire la ricerca di una voce che contenga il testo "
                              "digitato."));

    Listbox1 = lista(a, "Listbox1", {11, 461, 984, 170},
                     {QStringLiteral("Rif."), QStringLiteral("Voce"), QStringLiteral("Fino a €"), QStringLiteral("Min"),
                      QStringLiteral("Max"), QStringLiteral("Med"), QStringLiteral("Pers.")},
                     {28, 580, 72, 72, 72, 72, 72});
    Listbox1->setToolTip(tag("In questa finestra sono elencate le voci per la categoria prescelta.\r"
                             "Per aggiungere una voce alla propria parcella, selezionare il check-box della voce "
                             "relativa,\rscegliendo, se disponibile, il valore minimo, o massimo, o medio.\r"
                             "se si vuole scegliere un valore personalizzato, selezionare il check-box\r"
                             "dell'ultima casella e poi digitare l'importo."));

    StaticText8 = statico(a, "StaticText8", {11, 638, 140, 20}, "Testo voce e nota:", bianco);
    EditNota = campoTesto(a, "EditNota", {159, 638, 834, 48}, 2000, qRgb(0x80, 0, 0), qRgb(0xff, 0xff, 0xff));
    EditNota->setFont(arial(12));
    EditNota->setReadOnly(true);
    EditNota->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    EditNota->setFocusPolicy(Qt::StrongFocus);
    EditNota->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    EditNota->setToolTip(tag("Se è disponibile una nota per la voce selezionata, apparirà in questo riquadro.\r"
                             "Se la voce in elenco (qui sopra) presenta un simbolo di asterisco (*),\r"
                             "selezionando tale voce apparirà la nota relativa."));
}

void finestra::nominaControlli()
{
    nomina(StaticText10, EditField2);
    nomina(StaticText1, EditField1);
    nomina(StaticText5, PopImport);
    nomina(StaticText6, EditQuantum);
    nomina(StaticText14, checkiva);
    nomina(StaticText15, checkrite);
    nomina(StaticText3, PopCatA);
    nomina(StaticTextPop, PopCatB);
    nomina(StaticText4, EditCerca);
    nomina(StaticText8, EditNota);
    // The lists have no label: they are named by what they hold.
    Listbox2->setAccessibleName(QStringLiteral("Voci della parcella"));
    Listbox1->setAccessibleName(QStringLiteral("Voci della tariffa"));
}

void finestra::collegaHandler()
{
    connectHandler(EditField1, &EditText::TextChange, this, &finestra::EditField1_TextChange);
    connectHandler(EditField2, &EditText::TextChange, this, &finestra::EditField2_TextChange);
    connectHandler(EditQuantum, &EditLine::TextChange, this, &finestra::EditQuantum_TextChange);
    connectHandler(EditCerca, &EditLine::TextChange, this, &finestra::EditCerca_TextChange);
    EditField1->keyDown = [this](QKeyEvent *k) { return EditField1_KeyDown(k); };
    EditField2->keyDown = [this](QKeyEvent *k) { return EditField2_KeyDown(k); };
    EditQuantum->keyDown = [this](QKeyEvent *k) { return EditQuantum_KeyDown(k); };
    EditCerca->keyDown = [this](QKeyEvent *k) { return EditCerca_KeyDown(k); };
    EditNota->keyDown = [this](QKeyEvent *k) { return EditNota_KeyDown(k); };
    connectHandler(PopImport, &QComboBox::currentIndexChanged, this, &finestra::PopImport_Change);
    connectHandler(PopCatA, &QComboBox::currentIndexChanged, this, &finestra::PopCatA_Change);
    connectHandler(PopCatB, &QComboBox::currentIndexChanged, this, &finestra::PopCatB_Change);
    connectHandler(checkiva, &QCheckBox::toggled, this, &finestra::checkiva_Action);
    connectHandler(checkrite, &QCheckBox::toggled, this, &finestra::checkrite_Action);
    for (int i = 0; i < 2; ++i)
        connectHandler(PushCrea[size_t(i)], &QPushButton::clicked, this, [this, i] { PushCrea_Action(i); });
    connectHandler(Listbox1, &Listbox::CellAction, this, &finestra::Listbox1_CellAction);
    connectHandler(Listbox1, &Listbox::CellClick, this, &finestra::Listbox1_CellClick);
    connectHandler(Listbox2, &Listbox::CellAction, this, &finestra::Listbox2_CellAction);
    connectHandler(Listbox2, &Listbox::CellClick, this, &finestra::Listbox2_CellClick);
}

void finestra::ordinaTabulazione()
{
    // By tab index; EditNota shares index 1 with EditField2 and comes after it.
    const QWidget *ordine[] = {EditField2,  EditNota,    EditField1, PopImport, EditQuantum, Listbox2, checkiva,
                               PushCrea[1], PushCrea[0], PopCatA,    PopCatB,   EditCerca,   Listbox1, checkrite};
    for (size_t i = 1; i < std::size(ordine); ++i)
        setTabOrder(const_cast<QWidget *>(ordine[i - 1]), const_cast<QWidget *>(ordine[i]));
}

void finestra::Event_Open() { setWindowTitle(QStringLiteral("Lumetra")); }

void finestra::Event_Close() { Quit(0); }

QString finestra::parcellaTrascinata(const QMimeData *mime)
{
    if (!mime || !mime->hasUrls() || mime->urls().size() != 1)
        return {};
    const QString path = mime->urls().constFirst().toLocalFile();
    return path.endsWith(QStringLiteral(".qX9"), Qt::CaseInsensitive) ? path : QString();
}

bool finestra::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter: {
        // The bill is read from the drag as it enters, while its source is
        // sure to answer: some end as soon as they have dropped.
        auto *drag = static_cast<QDragEnterEvent *>(event);
        m_trascinata = parcellaTrascinata(drag->mimeData());
        if (m_trascinata.isEmpty())
            break;
        drag->acceptProposedAction();
        return true;
    }
    case QEvent::DragMove: {
        if (m_trascinata.isEmpty())
            break;
        static_cast<QDragMoveEvent *>(event)->acceptProposedAction();
        return true;
    }
    case QEvent::DragLeave:
        m_trascinata.clear();
        break;
    case QEvent::Drop: {
        // What entered is what drops: asked for again, the data of a source
        // that has ended would be waited for in vain.
        auto *drop = static_cast<QDropEvent *>(event);
        const QString path = m_trascinata.isEmpty() ? parcellaTrascinata(drop->mimeData()) : m_trascinata;
        m_trascinata.clear();
        if (path.isEmpty())
            break;
        drop->acceptProposedAction();
        // Opened once the drop is over, so that the source is not kept waiting
        // for the unsaved-changes warning and the user's answer.
        QTimer::singleShot(0, this, [this, path] {
            if (apriParcellaTrascinata)
                runGuarded([&] { apriParcellaTrascinata(path); });
        });
        return true;
    }
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

void finestra::closeEvent(QCloseEvent *event)
{
    Event_Close();
    event->accept();
}

QString finestra::testoCerca() const { return EditCerca->Text(); }

TestaParcella finestra::testa() const
{
    const auto &g = globali();
    return {EditField1->Text(), EditField2->Text(), EditQuantum->Text(), g.iva, g.rite};
}

void finestra::mostraTesta(const TestaParcella &testa)
{
    EditField1->setText(testa.editField1);
    EditField2->setText(testa.editField2);
    EditQuantum->setText(testa.editQuantum);
    globali().iva = testa.iva;
    globali().rite = testa.rite;
    checkiva->setChecked(testa.iva);
    checkrite->setChecked(testa.rite);
}

void finestra::azzeraRicerca()
{
    EditCerca->setText(QString());
    PopCatA->setCurrentIndex(0);
    PopCatB->clear();
    mostra_ricerca(EditCerca->Text());
}

void finestra::svuota()
{
    EditField1->setText(QString());
    EditField2->setText(QString());
    EditQuantum->setText(QString());
    PopImport->setCurrentIndex(0);
    checkiva->setChecked(true);
    azzeraRicerca();
}

void finestra::mostra_ricerca(const QString &text)
{
    EditNota->setText(QString());
    const FiltroRicerca filtro{PopCatA->currentText(), PopCatB->currentText(), text};
    const auto righe = righeRicerca(globali().dati, filtro, EditQuantum->Text(), PopImport->currentIndex());
    Listbox1->riempi(righe);
    mostra_notaspese();
}

void finestra::mostra_notaspese()
{
    auto &g = globali();
    g.totale[0] = 0;
    riprezza(g.dati, EditQuantum->Text(), PopImport->currentIndex());
    const VistaParcella vista = vistaParcella(g.dati, EditQuantum->Text());
    g.totale[0] = vista.totale;
    Listbox2->riempi(vista.righe);
}

// ---- Head of the bill

void finestra::EditField1_TextChange()
{
    StaticText2->setText(contatore(EditField1->Text(), 280));
    globali().modificato = true;
}

void finestra::EditField2_TextChange()
{
    StaticText11->setText(contatore(EditField2->Text(), 200));
    globali().modificato = true;
}

namespace {
template <class Field>
bool selezionaTutto(Field *field, QKeyEvent *key)
{
    if (tastoSelezionaTutto(key))
        field->selectAll();
    return false;
}
} // namespace

bool finestra::EditField1_KeyDown(QKeyEvent *key) { return selezionaTutto(EditField1, key); }
bool finestra::EditField2_KeyDown(QKeyEvent *key) { return selezionaTutto(EditField2, key); }
bool finestra::EditQuantum_KeyDown(QKeyEvent *key) { return selezionaTutto(EditQuantum, key); }
bool finestra::EditCerca_KeyDown(QKeyEvent *key) { return selezionaTutto(EditCerca, key); }

bool finestra::EditNota_KeyDown(QKeyEvent *key)
{
    selezionaTutto(EditNota, key);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
        mostra_ricerca(EditCerca->Text());
    return false;
}

void finestra::EditQuantum_TextChange()
{
    if (const auto filtrato = filtraValore(EditQuantum->Text())) {
        EditQuantum->setText(*filtrato);
        EditQuantum->end(false);
    }
    const QString avviso = avvisoValore(EditQuantum->Text());
    StaticAvviso->setText(avviso);
    StaticAvviso->setVisible(!avviso.isEmpty());
    globali().modificato = true;
    mostra_ricerca(EditCerca->Text());
}

void finestra::PopImport_Change()
{
    if (PopImport->currentIndex() < 1) {
        EditQuantum->setEnabled(true);
        EditQuantum->setText(QString());
    } else {
        EditQuantum->setEnabled(false);
        // The blank is for the filter to take away; without it the filter would
        // cut the word's last letter.
        EditQuantum->setText(PopImport->currentText() + QLatin1Char(' '));
    }
    globali().modificato = true;
    mostra_ricerca(EditCerca->Text());
}

void finestra::checkiva_Action()
{
    globali().iva = checkiva->isChecked();
    globali().modificato = true;
}

void finestra::checkrite_Action()
{
    globali().rite = checkrite->isChecked();
    globali().modificato = true;
}

void finestra::PushCrea_Action(int index)
{
    globali().elab = index;
    // The main window goes only once the document stands: a failure while
    // composing leaves it on the screen.
    apriDocumento([this] { hide(); });
}

// ---- Category navigation

void finestra::PopCatA_Change()
{
    const int i = PopCatA->currentIndex();
    if (i <= 1) {
        EditCerca->setEnabled(false);
        PopCatB->setEnabled(false);
        StaticTextPop->setText(QStringLiteral("Sotto-Categoria:"));
        nomina(StaticTextPop, PopCatB); // spoken as it reads
        PopCatA->setCurrentIndex(0);
        return;
    }
    EditCerca->setEnabled(true);
    EditCerca->setFocus();
    PopCatB->setEnabled(true);
    const Sottocategorie sotto = sottocategorie(i);
    {
        // Filling the menu selects nothing yet: the listing comes with the
        // choice of the first entry below.
        const QSignalBlocker quiet(PopCatB);
        PopCatB->clear();
        StaticTextPop->setText(sotto.etichetta);
        nomina(StaticTextPop, PopCatB);
        PopCatB->addItems(sotto.voci);
        PopCatB->setCurrentIndex(-1);
    }
    PopCatB->setCurrentIndex(0);
}

void finestra::PopCatB_Change() { mostra_ricerca(EditCerca->Text()); }

void finestra::EditCerca_TextChange() { mostra_ricerca(EditCerca->Text()); }

// ---- Picking

void finestra::chiudiPers(int row)
{
    Listbox1->setCellType(row, RicPers, TipoSpunta);
    Listbox1->setCellCheck(row, RicPers, true);
}

void finestra::Listbox1_CellAction(int row, int column)
{
    Listbox &l = *Listbox1;
    if (column == RicPers && l.CellType(row, RicPers) == TipoModificabile) {
        chiudiPers(row);
    } else {
        // The four boxes of a row are exclusive.
        for (int c = RicMin; c <= RicPers; ++c)
            if (c != column)
                l.setCellCheck(row, c, false);
        if (column == RicPers && l.CellCheck(row, RicPers)) {
            l.setCellType(row, RicPers, TipoModificabile);
            l.EditCell(row, RicPers);
        }
    }

    auto &g = globali();
    const int r = rigaTariffa(l.Cell(row, RicRif));
    scegliVoce(g.dati, r, -1, QString());
    int spuntata = -1;
    for (int c = RicMin; c <= RicPers; ++c)
        if (l.CellCheck(row, c))
            spuntata = c;
    if (spuntata == RicPers && accontoDaRichiedere(g.dati.at(r, kColVoce))) {
        g.acconto_calcolato[1] = Str(row);
        g.acconto_calcolato[2] = Str(column);
        g.acconto_calcolato[3] = Str(r);
        // The calculator writes the net sum into the cell: the typing in it
        // ends here, without a further CellAction.
        if (l.inModifica()) {
            l.chiudiModifica();
            chiudiPers(row);
        }
        calcolaAcconto();
    }
    if (spuntata >= 0)
        scegliVoce(g.dati, r, spuntata, l.Cell(row, column));
    g.modificato = true;
    mostra_notaspese();
}

void finestra::calcolaAcconto()
{
    auto &g = globali();
    const QString netto = apriCalcolatore();
    // The calculator is modal: the row and column noted before it opened still
    // point at the ticked cell.
    const int row = toInteger(CDbl(g.acconto_calcolato[1]));
    const int column = toInteger(CDbl(g.acconto_calcolato[2]));
    const int r = toInteger(CDbl(g.acconto_calcolato[3]));
    Listbox1->setCell(row, column, netto);
    g.dati.at(r, kColStato) = QLatin1Char('-') + netto;
    g.dati.at(r, kColValore) = netto;
    mostra_notaspese();
}

bool finestra::Listbox1_CellClick(int row, int column)
{
    Q_UNUSED(column);
    const int r = rigaTariffa(Listbox1->Cell(row, RicRif));
    EditNota->setText(testoNota(globali().dati, r, Listbox1->Cell(row, RicVoce)));
    return false;
}

// ---- The bill list

bool finestra::Listbox2_CellClick(int row, int column)
{
    Q_UNUSED(column);
    const int i = rigaTariffa(Listbox2->Cell(row, ParRif));
    EditNota->setText(testoNota(globali().dati, i, Listbox2->Cell(row, ParVoce)));
    return false;
}

void finestra::Listbox2_CellAction(int row, int column)
{
    auto &g = globali();
    const int i = rigaTariffa(Listbox2->Cell(row, ParRif));
    switch (column) {
    case ParVoce:
        rinominaVoce(g.dati, i, Listbox2->Cell(row, ParVoce));
        break;
    case ParQuantita:
        cambiaQuantita(g.dati, i, Listbox2->Cell(row, ParQuantita));
        break;
    case ParTotale:
        Listbox2->RemoveRow(row);
        togliVoce(g.dati, i);
        break;
    default:
        break;
    }
    g.modificato = true;
    mostra_ricerca(EditCerca->Text());
}

} // namespace lumetra
