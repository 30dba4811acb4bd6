// One program per user session: a second start hands over to the first.

#include "app/document_handover.h"
#include "editor/ui/finestra_fixture.h"

#include <QDialog>
#include <QLocalServer>
#include <future>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class Handover : public FinestraTest {
protected:
    QString name() const { return folderPath(u("handover")); }

    // The program that runs: it listens and notes what it is given.
    void avvia(DocumentHandover &first)
    {
        ASSERT_TRUE(first.listen());
        first.ready = true;
        first.openDocument = [this](const QString &d) { aperti << d; };
        first.activate = [this] { ++attivazioni; };
    }

    // A second start, in a thread of its own as it would be in a process of
    // its own, while this one goes on taking events.
    DocumentHandover::Esito secondoAvvio(const QStringList &documents)
    {
        DocumentHandover second(name());
        auto esito = std::async(std::launch::async, [&] { return second.consegna(documents); });
        while (esito.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready)
            settle();
        settle(50);
        return esito.get();
    }

    QStringList aperti;
    int attivazioni = 0;
};

} // namespace

TEST_F(Handover, ALiveOwnerKeepsTheNameAndTakesTheDocumentsInOrder)
{
    DocumentHandover first(name());
    avvia(first);
    DocumentHandover other(name());
    EXPECT_FALSE(other.listen()); // never displaced while it answers
    EXPECT_EQ(secondoAvvio({u("/a/uno.qX9"), u("/a/due.qX9")}), DocumentHandover::Esito::Consegnati);
    EXPECT_EQ(aperti, (QStringList{u("/a/uno.qX9"), u("/a/due.qX9")}));
    // A start without documents brings the running program to the front.
    EXPECT_EQ(secondoAvvio({}), DocumentHandover::Esito::Consegnati);
    EXPECT_EQ(attivazioni, 1);
}

TEST_F(Handover, AStaleSocketIsReclaimedAndAHungOwnerSwallowsNothing)
{
    // A socket file left by a program that did not end: nobody answers on it.
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, name().toLocal8Bit().constData(), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    ::close(fd);
    ASSERT_TRUE(QFile::exists(name()));
    DocumentHandover first(name());
    EXPECT_EQ(first.consegna({u("/a/uno.qX9")}), DocumentHandover::Esito::NessunProgramma);
    avvia(first);

    // The owner does not take events (here: this very thread waits): the
    // second start is told, and runs on its own with its document.
    DocumentHandover second(name());
    EXPECT_EQ(second.consegna({u("/a/uno.qX9")}, 200), DocumentHandover::Esito::NessunaRisposta);
}

TEST_F(Handover, DocumentsWaitForAModalWindowToClose)
{
    DocumentHandover first(name());
    avvia(first);
    QDialog modal(w);
    QTimer::singleShot(0, &modal, [&] {
        EXPECT_EQ(secondoAvvio({u("/a/uno.qX9"), u("/a/due.qX9")}), DocumentHandover::Esito::Consegnati);
        settle(250);
        EXPECT_TRUE(aperti.isEmpty());
        modal.accept();
    });
    // The dialog is the test's own: the fixture lets it be while it is open.
    std::function<void(QWidget *)> lascia = [&](QWidget *) {
        if (modal.isVisible())
            onNextModal(lascia);
    };
    onNextModal(lascia);
    modal.exec();
    settle(250);
    EXPECT_EQ(aperti, (QStringList{u("/a/uno.qX9"), u("/a/due.qX9")}));
}

TEST_F(Handover, ADocumentThatCannotBeOpenedIsToldAndTheBillStays)
{
    DocumentHandover first(name());
    avvia(first);
    first.openDocument = [](const QString &d) { App::instance()->Event_OpenDocument(d); };
    digita(EditField1, u("Causa in corso"));
    mkfifo(folderPath(u("tubo.qX9")).toLocal8Bit().constData(), 0600);
    secondoAvvio({folderPath(u("nome-sbagliato.qX9")), folderPath(u("tubo.qX9"))});
    EXPECT_EQ(fake.messages,
              (QStringList{u("Impossibile aprire il documento nome-sbagliato.qX9:\ril file non esiste."),
                           u("Impossibile aprire il documento tubo.qX9:\rnon è un file leggibile.")}));
    EXPECT_EQ(EditField1->Text(), u("Causa in corso"));
    EXPECT_TRUE(globali().modificato && globali().nome_attuale.isEmpty());
}

TEST(DocumentArguments, AbsolutePathsOptionsLeftOut)
{
    const QStringList documents
        = documentArguments({u("lumetra"), u("Causa.qX9"), u("--style=fusion"), u("/srv/Bozza.qX9")});
    EXPECT_EQ(documents, (QStringList{QDir::current().absoluteFilePath(u("Causa.qX9")), u("/srv/Bozza.qX9")}));
}
