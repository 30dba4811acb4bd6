#include "support/ui_fixture.h"

#include "app/app.h"
#include "core/globali.h"
#include "core/paths.h"
#include "core/quit.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTest>
#include <QWidget>

namespace lumetra::test {

QString FakeDialogs::openFile(const QString &filter)
{
    filters << filter;
    if (openAnswers.empty())
        return {};
    QString answer = openAnswers.front();
    openAnswers.pop_front();
    return answer;
}

QString FakeDialogs::saveFile(const QString &filter, const QString &proposedName)
{
    filters << filter;
    proposals << proposedName;
    if (saveAnswers.empty())
        return {};
    QString answer = saveAnswers.front();
    saveAnswers.pop_front();
    return answer;
}

bool FakeDialogs::printerDialog(QPrinter &printer)
{
    if (printAnswers.empty())
        return false;
    const bool answer = printAnswers.front();
    printAnswers.pop_front();
    if (answer && configurePrinter)
        configurePrinter(printer);
    return answer;
}

void UiTest::SetUp()
{
    ASSERT_TRUE(dir.isValid());
    setExecutableFolder(dir.path());
    setUserDataFolder(dir.filePath(QStringLiteral("utente")));
    setDialogs(&fake);
    globali() = Globali{};
    App::failureSink() = [](const QString &message) { ADD_FAILURE() << message.toStdString(); };
    App::setStarted(true); // a failure is told and the program goes on
    quits.clear();
    quitHandler() = [this](int code) { quits << code; };
    m_watchdog.setInterval(20);
    QObject::connect(&m_watchdog, &QTimer::timeout, [this] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        if (!m_modalHandlers.empty()) {
            auto handler = std::move(m_modalHandlers.front());
            m_modalHandlers.pop_front();
            handler(modal);
            return;
        }
        ADD_FAILURE() << "unexpected modal window: " << modal->objectName().toStdString() << " \""
                      << modal->windowTitle().toStdString() << "\"";
        modal->close();
    });
    m_watchdog.start();
}

void UiTest::TearDown()
{
    m_watchdog.stop();
    // Some top-level widgets (popups, tool tips) belong to another and die with it.
    QList<QPointer<QWidget>> windows;
    for (QWidget *w : QApplication::topLevelWidgets())
        windows << w;
    for (const auto &w : windows) {
        if (!w)
            continue;
        w->hide();
        delete w.data();
    }
    settle();
    setDialogs(nullptr);
    setExecutableFolder(QString());
    setUserDataFolder(QString());
}

QString UiTest::folderPath(const QString &name) const { return dir.filePath(name); }

void UiTest::writeFile(const QString &name, const QByteArray &bytes) const
{
    QFile f(folderPath(name));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

void UiTest::copyData(const QString &relative, const QString &name) const
{
    QFile src(QStringLiteral(LUMETRA_TEST_DATA "/") + relative);
    ASSERT_TRUE(src.open(QIODevice::ReadOnly)) << relative.toStdString();
    writeFile(name, src.readAll());
}

void UiTest::onNextModal(std::function<void(QWidget *)> handler) { m_modalHandlers.push_back(std::move(handler)); }

void UiTest::settle(int ms)
{
    QApplication::processEvents();
    if (ms > 0)
        QTest::qWait(ms);
    QApplication::processEvents();
}

QByteArray smallTariff()
{
    QFile f(QStringLiteral(LUMETRA_TEST_DATA "/tariffa_piccola.txt"));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

} // namespace lumetra::test
