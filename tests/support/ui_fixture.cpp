// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui_fixture.h"

#include "app/app.h"
#include "core/globali.h"
#include "core/paths.h"
#include "core/quit.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWidget>

namespace lumetra::test {

void UiTest::SetUp()
{
    ASSERT_TRUE(dir.isValid());
    setExecutableFolder(dir.path());
    setUserDataFolder(dir.filePath(QStringLiteral("utente")));
    setDialogs(&fake);
    globali() = Globali{};
    App::failureSink() = [](const QString &message) { ADD_FAILURE() << message.toStdString(); };
    App::setStarted(true); // a failure is told and the program goes on
    quitHandler() = [this](int code) { quits << code; };
    m_watchdog.setInterval(20);
    QObject::connect(&m_watchdog, &QTimer::timeout, [this] {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal && !m_modalHandlers.empty()) {
            auto handler = std::move(m_modalHandlers.front());
            m_modalHandlers.pop_front();
            handler(modal);
        } else if (modal) {
            ADD_FAILURE() << "unexpected modal window: " << modal->objectName().toStdString() << " \""
                          << modal->windowTitle().toStdString() << "\"";
            modal->close();
        }
    });
    m_watchdog.start();
}

void UiTest::TearDown()
{
    m_watchdog.stop();
    // Only the windows nobody owns are deleted: a popup (a combo box's list, a
    // menu) dies with the widget that owns it, which keeps pointing to it and
    // would use it, deleted, when hidden.
    QList<QPointer<QWidget>> windows;
    for (QWidget *w : QApplication::topLevelWidgets())
        windows << w;
    for (const auto &w : windows)
        if (w)
            w->hide();
    for (const auto &w : windows)
        if (w && !w->parentWidget())
            delete w.data();
    settle();
    setDialogs(nullptr);
    setExecutableFolder(QString());
    setUserDataFolder(QString());
}

void UiTest::settle(int ms)
{
    QApplication::processEvents();
    if (ms > 0)
        QTest::qWait(ms);
    QApplication::processEvents();
}

} // namespace lumetra::test
