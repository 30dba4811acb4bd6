// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/listbox.h"

#include "core/failure.h"
#include "core/text_functions.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace lumetra {

namespace {

Qt::ItemFlags flagsFor(int tipo)
{
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (tipo == TipoSpunta)
        f |= Qt::ItemIsUserCheckable;
    else if (tipo == TipoModificabile)
        f |= Qt::ItemIsEditable;
    return f;
}

Qt::Alignment alignmentFor(int allineamento)
{
    switch (allineamento) {
    case AllineaCentro:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case AllineaDestra:
        return Qt::AlignRight | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

const QColor kGriglia(0xc8, 0xc8, 0xc8);

} // namespace

// A cell: its type and tick are kept apart from what Qt shows, because a tick
// survives on a cell that is no check box (it shows again when the cell turns
// back into one).
class Listbox::Item : public QTableWidgetItem {
public:
    explicit Item(const Cella &c)
        : QTableWidgetItem(c.testo, UserType), m_tipo(c.tipo), m_allineamento(c.allineamento), m_spunta(c.spunta),
          m_grassetto(c.grassetto), m_corsivo(c.corsivo)
    {
        setFlags(flagsFor(m_tipo));
    }

    QVariant data(int role) const override
    {
        switch (role) {
        case Qt::CheckStateRole:
            if (m_tipo != TipoSpunta)
                return {};
            return m_spunta ? Qt::Checked : Qt::Unchecked;
        case Qt::TextAlignmentRole:
            return int(alignmentFor(m_allineamento));
        case Qt::FontRole: {
            if (!m_grassetto && !m_corsivo)
                return {};
            QFont f;
            if (m_grassetto)
                f.setBold(true);
            if (m_corsivo)
                f.setItalic(true);
            return f;
        }
        default:
            return QTableWidgetItem::data(role);
        }
    }

    void setData(int role, const QVariant &value) override
    {
        if (role == Qt::CheckStateRole) {
            m_spunta = value.toInt() == Qt::Checked;
            changed();
            return;
        }
        QTableWidgetItem::setData(role, value);
    }

    int tipo() const { return m_tipo; }
    void setTipo(int t)
    {
        m_tipo = t;
        setFlags(flagsFor(t));
        changed();
    }
    bool spunta() const { return m_spunta; }
    void setSpunta(bool s)
    {
        m_spunta = s;
        changed();
    }

private:
    // Tells the view that the cell must be drawn again.
    void changed() { QTableWidgetItem::setData(Qt::UserRole, ++m_revisione); }

    int m_tipo;
    int m_allineamento;
    bool m_spunta;
    bool m_grassetto;
    bool m_corsivo;
    int m_revisione = 0;
};

// Draws the grid (dotted between rows, solid between columns), knows when the
// user has toggled a box, and which editor is open.
class ListboxDelegate : public QStyledItemDelegate {
public:
    explicit ListboxDelegate(Listbox *list) : QStyledItemDelegate(list), m_list(list) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const QRect r = option.rect;
        painter->save();
        painter->setPen(QPen(kGriglia, 1, Qt::DotLine));
        painter->drawLine(r.bottomLeft(), r.bottomRight());
        painter->setPen(QPen(kGriglia, 1, Qt::SolidLine));
        painter->drawLine(r.topRight(), r.bottomRight());
        painter->restore();
    }

    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override
    {
        const QVariant before = index.data(Qt::CheckStateRole);
        const int row = index.row();
        const int column = index.column();
        const bool handled = QStyledItemDelegate::editorEvent(event, model, option, index);
        if (handled && before.isValid() && index.data(Qt::CheckStateRole) != before)
            emit m_list->CellAction(row, column);
        return handled;
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        m_list->m_editor = editor;
        m_list->m_editing = index;
        return editor;
    }

    // A cell is one line of a bill file: a pasted line break becomes a blank.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        QStyledItemDelegate::setModelData(editor, model, index);
        const QString text = index.data(Qt::EditRole).toString();
        if (const QString one = unaRiga(text); one != text)
            model->setData(index, one, Qt::EditRole);
    }

    void opzioni(QStyleOptionViewItem *option, const QModelIndex &index) const { initStyleOption(option, index); }

private:
    Listbox *m_list;
};

Listbox::Listbox(QWidget *parent) : QTableWidget(parent)
{
    setItemDelegate(new ListboxDelegate(this));
    setShowGrid(false);
    setWordWrap(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    // Tab leaves the list for the next control, as in every other field; the
    // arrows move between the rows.
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(20);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(false);
}

void Listbox::setColonne(const QStringList &headings, const QList<int> &widths)
{
    setColumnCount(int(headings.size()));
    setHorizontalHeaderLabels(headings);
    for (int c = 0; c < widths.size(); ++c)
        setColumnWidth(c, widths[c]);
}

Listbox::Item *Listbox::item(int row, int column) const
{
    auto *it = static_cast<Item *>(QTableWidget::item(row, column));
    if (!it)
        throw UnhandledFailure(
            QStringLiteral("cella %1, %2 fuori dai limiti della lista %3").arg(row).arg(column).arg(objectName()));
    return it;
}

Listbox::Item *Listbox::nuovoItem(const Cella &cella) const { return new Item(cella); }

void Listbox::RemoveRow(int row)
{
    if (row < 0 || row >= rowCount())
        throw UnhandledFailure(QStringLiteral("riga %1 fuori dai limiti della lista %2").arg(row).arg(objectName()));
    removeRow(row);
}

QString Listbox::Cell(int row, int column) const { return item(row, column)->text(); }
void Listbox::setCell(int row, int column, const QString &text) { item(row, column)->setText(text); }
int Listbox::CellType(int row, int column) const { return item(row, column)->tipo(); }
void Listbox::setCellType(int row, int column, int type) { item(row, column)->setTipo(type); }
bool Listbox::CellCheck(int row, int column) const { return item(row, column)->spunta(); }
void Listbox::setCellCheck(int row, int column, bool check) { item(row, column)->setSpunta(check); }

void Listbox::EditCell(int row, int column)
{
    Item *it = item(row, column);
    setCurrentItem(it);
    editItem(it);
}

void Listbox::riempi(std::span<const Cella> celle)
{
    const int colonne = columnCount();
    const int righe = colonne > 0 ? int(celle.size()) / colonne : 0;
    setUpdatesEnabled(false);
    setRowCount(0);
    setRowCount(righe);
    {
        // One repaint of the whole list afterwards stands for a notification per cell.
        const QSignalBlocker quiet(model());
        for (int r = 0; r < righe; ++r)
            for (int c = 0; c < colonne; ++c)
                setItem(r, c, nuovoItem(celle[size_t(r * colonne + c)]));
    }
    setUpdatesEnabled(true);
    viewport()->update();
}

QRect Listbox::rettangoloSpunta(int row, int column) const
{
    const QModelIndex index = model()->index(row, column);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    static_cast<const ListboxDelegate *>(itemDelegate())->opzioni(&option, index);
    return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
}

void Listbox::chiudiModifica()
{
    QWidget *editor = m_editor;
    if (!editor)
        return;
    commitData(editor);
    const QScopedValueRollback<bool> muto(m_silentClose, true);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void Listbox::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid())
        emit CellClick(index.row(), index.column());
    QTableWidget::mousePressEvent(event);
}

void Listbox::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const QPersistentModelIndex ended = editor == m_editor ? m_editing : QPersistentModelIndex();
    if (editor == m_editor) {
        m_editor = nullptr;
        m_editing = QPersistentModelIndex();
    }
    QTableWidget::closeEditor(editor, hint);
    if (!m_silentClose && ended.isValid())
        emit CellAction(ended.row(), ended.column());
}

} // namespace lumetra
