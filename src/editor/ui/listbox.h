// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The list control of the main window, over QTableWidget, with the operations
// the program uses by name. A cell has a type (0 the column's default, which is
// text here; 1 text; 2 check box; 3 editable text), an alignment (0 default,
// 1 left, 2 centre, 3 right), a tick, and bold and italic.
//
// CellClick(row, column) is raised on a press on a cell, before the cell
// handles it; CellAction(row, column) when the user toggles a check box or
// ends the editing of a cell. The program's own writes raise neither.

#include "editor/cells.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QTableWidget>
#include <span>

namespace lumetra {

class Listbox : public QTableWidget {
    Q_OBJECT
public:
    explicit Listbox(QWidget *parent = nullptr);

    // Headings and widths of the columns; the columns can't be resized.
    void setColonne(const QStringList &headings, const QList<int> &widths);

    int ListCount() const { return rowCount(); }
    void RemoveRow(int row);

    QString Cell(int row, int column) const;
    void setCell(int row, int column, const QString &text);
    int CellType(int row, int column) const;
    void setCellType(int row, int column, int type);
    bool CellCheck(int row, int column) const;
    void setCellCheck(int row, int column, bool check);
    // Opens the cell for typing (it must be of type 3).
    void EditCell(int row, int column);

    // Replaces all rows at once, each with columnCount() cells: what
    // emptying the list and filling it row by row would give, without the cost of one
    // model notification per cell.
    void riempi(std::span<const Cella> celle);
    template <size_t N>
    void riempi(const std::vector<std::array<Cella, N>> &righe)
    {
        riempi(std::span<const Cella>(righe.empty() ? nullptr : righe.front().data(), righe.size() * N));
    }

    // Whether a cell is open for typing.
    bool inModifica() const { return m_editor != nullptr; }
    // Where the check box of a cell lies, in the viewport's coordinates.
    QRect rettangoloSpunta(int row, int column) const;
    // Ends the editing of the open cell, keeping what was typed, as the
    // program's act: no CellAction.
    void chiudiModifica();

signals:
    void CellAction(int row, int column);
    void CellClick(int row, int column);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    friend class ListboxDelegate;
    class Item;
    Item *item(int row, int column) const;
    Item *nuovoItem(const Cella &cella) const;

    QPersistentModelIndex m_editing;
    QPointer<QWidget> m_editor;
    bool m_silentClose = false;
};

} // namespace lumetra
