#include "editor/ui/finestra.h"

#include "core/ui/app.h"

#include <QCloseEvent>
#include <QLayout>

namespace lumetra {

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
}

void finestra::Event_Open() { setWindowTitle(QStringLiteral("Lumetra")); }

void finestra::Event_Close() { Quit(0); }

void finestra::closeEvent(QCloseEvent *event)
{
    Event_Close();
    event->accept();
}

void finestra::mostra_ricerca(const QString &text)
{
    Q_UNUSED(text);
    mostra_notaspese();
}

void finestra::mostra_notaspese() {}

QString finestra::testoCerca() const { return {}; }

} // namespace lumetra
