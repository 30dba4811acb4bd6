// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/ui/fin_elaborazione.h"

#include "core/file_types.h"
#include "core/files.h"
#include "core/globali.h"
#include "core/ui/dialogs.h"
#include "core/ui/handler_guard.h"
#include "core/ui/look.h"
#include "document/composer.h"
#include "document/crea_stile.h"
#include "document/ui/stampa.h"
#include "richtext/rtf_writer.h"
#include "richtext/ui/styled_document.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMimeData>
#include <QPrinter>
#include <QTextEdit>

namespace lumetra {

namespace {

struct Comando {
    int left;
    const char *caption;
    const char *helpTag;
};

// By index; "\r" in a help tag is a line break.
const Comando kComandi[5] = {
    {10, "Chiudi", "Chiude questa finestra."},
    {115, "Copia",
     "Copia il testo generato in memoria,\rper essere incollato su un editor di testo.\r"
     "(n.b.: gli allineamenti del testo vengono perduti)."},
    {325, "Registra RTF..",
     "Regista il testo generato come RTF,\rformato che mantiene font, dimensioni, stili e allineamenti,\r"
     "compatibile con la stragrande maggioranza degli editor di testo esistenti."},
    {430, "Porta su Word",
     "Su piattaforma Windows, se installato, porta direttamente\ril testo su Microsoft Word (2003 o successivo)."},
    {220, "Stampa..",
     "Stampa una bozza del testo generato;\rper un risultato migliore, si consiglia di esportare\r"
     "un file RTF e aprirlo con un editor di testo.\rSu piattaforma Windows, è possibile, se installato,\r"
     "portare direttamente il testo su Microsoft Word (2003 o successivo)."},
};

QTextEdit *campoTesto(const QString &name, int left, QWidget *parent)
{
    auto *field = new QTextEdit(parent);
    field->setObjectName(name);
    place(field, left, 40, 520, 640);
    field->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    field->setReadOnly(false);
    field->setAcceptRichText(true);
    // A narrow inset, so that the widest lines of the summary (92 columns at
    // 9 points) fit the field unbroken.
    field->document()->setDocumentMargin(2);
    QFont font = field->font();
    font.setPixelSize(12);
    field->setFont(font);
    QPalette pal = field->palette();
    pal.setColor(QPalette::Base, Qt::white);
    pal.setColor(QPalette::Text, Qt::black);
    field->setPalette(pal);
    return field;
}

} // namespace

fin_elaborazione::BevelBE::BevelBE(int index, const QString &caption, QWidget *parent)
    : QPushButton(caption, parent), Index(index)
{
    setObjectName(QStringLiteral("BevelBE%1").arg(index));
    QFont f = font();
    f.setPixelSize(12);
    setFont(f);
}

fin_elaborazione::fin_elaborazione()
{
    setObjectName(QStringLiteral("fin_elaborazione"));
    setWindowTitle(QStringLiteral("Lumetra"));
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                   | Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    setFixedSize(540, 690);
    sfondo(this, QColor(0xcc, 0xcc, 0xcc));
    setAttribute(Qt::WA_DeleteOnClose);

    EditF = campoTesto(QStringLiteral("EditF"), 10, this);
    for (int i = 0; i < 5; ++i) {
        const Comando &c = kComandi[i];
        bevel[size_t(i)] = new BevelBE(i, QString::fromUtf8(c.caption), this);
        place(bevel[size_t(i)], c.left, 10, 100, 22);
        bevel[size_t(i)]->setToolTip(QString::fromUtf8(c.helpTag).replace(QLatin1Char('\r'), QLatin1Char('\n')));
        connectHandler(bevel[size_t(i)], &QPushButton::clicked, this, [this, i] { BevelBE_Action(bevel[size_t(i)]); });
    }
    // Out of sight at the right of the window, as the Word copy only.
    EditF2 = campoTesto(QStringLiteral("EditF2"), 550, this);
    EditF2->hide();

    // Tab order by tab index: EditF, then the buttons 0, 1, 2, 3, 4.
    QWidget *previous = EditF;
    for (int index = 0; index < 5; ++index) {
        setTabOrder(previous, bevel[size_t(index)]);
        previous = bevel[size_t(index)];
    }
    setTabOrder(previous, EditF2);

    connectHandler(this, &QDialog::finished, this, [this] { Event_Close(); });
}

void fin_elaborazione::Event_Open()
{
    const int elab = globali().elab;
    setWindowTitle(elab != 0 ? QStringLiteral("Fattura") : QStringLiteral("Nota spese - Competenze"));
    // The field holds the document the title names.
    EditF->setAccessibleName(windowTitle());
#ifdef Q_OS_WIN
    bevel[3]->setEnabled(true);
#else
    // Only Windows has the automation of Microsoft Word.
    bevel[3]->setEnabled(false);
#endif
}

void fin_elaborazione::componi(const DatiDocumento &bill)
{
    const int elab = globali().elab;
    const QString text = Crea_testo(bill);
    setStyledText(*EditF->document(), Crea_stile(text, sty_f, elab, 9, 12));
    setStyledText(*EditF2->document(), Crea_stile(text, sty_f, elab, 12, 16));
    EditF->moveCursor(QTextCursor::Start);
}

void fin_elaborazione::Event_Close() { emit chiusa(); }

void fin_elaborazione::ShowModal() { exec(); }

void fin_elaborazione::keyPressEvent(QKeyEvent *event)
{
    // Escape must not throw away a retouched document.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void fin_elaborazione::BevelBE_Action(BevelBE *button)
{
    switch (button->Index) {
    case 0:
        close();
        break;
    case 1:
        copia(EditF);
        break;
    case 2:
        registraRtf();
        break;
    case 3:
        esporta_su_word();
        break;
    case 4:
        stampa();
        break;
    default:
        break;
    }
}

// The totals go back to the globals, where the main window finds them.
QString fin_elaborazione::Crea_testo(const DatiDocumento &bill)
{
    const Documento doc = lumetra::Crea_testo(bill);
    globali().totale = doc.totale;
    sty_f = doc.sty_f;
    return doc.testo;
}

// SelectAll, Copy, SelLength = 0: rich text and plain text, the alignments lost.
void fin_elaborazione::copia(QTextEdit *field)
{
    field->selectAll();
    auto *mime = new QMimeData;
    mime->setHtml(htmlWithoutAlignment(*field->document()));
    mime->setText(field->document()->toPlainText());
    QApplication::clipboard()->setMimeData(mime);
    QTextCursor cursor = field->textCursor();
    cursor.setPosition(0);
    field->setTextCursor(cursor);
}

// An export: the bill's name, file and modified state stay as they were.
void fin_elaborazione::registraRtf()
{
    const QString path = dialogs().saveFile(FileTypes::TextRtf().filter(), nomePropostoRtf(globali().nome_attuale));
    if (path.isEmpty())
        return;
    writeWholeFile(path, RTFData(styledText(*EditF->document())));
}

void fin_elaborazione::stampa()
{
    QPrinter printer;
    if (!dialogs().printerDialog(printer))
        return;
    stampaBozza(*EditF->document(), printer);
}

} // namespace lumetra
