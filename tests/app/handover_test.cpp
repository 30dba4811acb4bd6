// One program per user session: a second start hands over to the first.

#include "app/document_handover.h"
#include "editor/ui/finestra_fixture.h"

#include <QDialog>
#include <future>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace lumetra;
using namespace lumetra::test;
using Esito = DocumentHandover::Esito;

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
    Esito secondoAvvio(const QStringList &documents)
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

TEST_F(Handover, AStaleSocketIsReclaimedALiveOwnerNeverAndAHungOneSwallowsNothing)
{
    // A socket file left by a program that did not end: nobody answers on it.
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, name().toLocal8Bit().constData(), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    ::close(fd);
    DocumentHandover first(name());
    EXPECT_EQ(first.consegna({u("/a/uno.qX9")}), Esito::NessunProgramma);
    avvia(first);

    DocumentHandover other(name());
    EXPECT_FALSE(other.listen()); // never displaced while it answers
    EXPECT_EQ(secondoAvvio({u("/a/uno.qX9"), u("/a/due.qX9")}), Esito::Consegnati);
    EXPECT_EQ(aperti, (QStringList{u("/a/uno.qX9"), u("/a/due.qX9")}));
    // A start without documents brings the running program to the front.
    EXPECT_EQ(secondoAvvio({}), Esito::Consegnati);
    EXPECT_EQ(attivazioni, 1);
    // An owner that takes no events (here: this thread waits) is no owner: the
    // second start is told, and runs on its own with its documents.
    EXPECT_EQ(other.consegna({u("/a/tre.qX9")}, 200), Esito::NessunaRisposta);
}

TEST_F(Handover, DocumentsWaitForAModalWindowToClose)
{
    DocumentHandover first(name());
    avvia(first);
    QDialog modal(w);
    QTimer::singleShot(0, &modal, [&] {
        EXPECT_EQ(secondoAvvio({u("/a/uno.qX9"), u("/a/due.qX9")}), Esito::Consegnati);
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
                           u("Impossibile aprire il documento tubo.qX9:\rnon è un file regolare.")}));
    EXPECT_TRUE(EditField1->Text() == u("Causa in corso") && globali().modificato && globali().nome_attuale.isEmpty());
    // The documents a start names: absolute paths, options left out.
    EXPECT_EQ(documentArguments({u("lumetra"), u("Causa.qX9"), u("--style=fusion"), u("/srv/Bozza.qX9")}),
              (QStringList{QDir::current().absoluteFilePath(u("Causa.qX9")), u("/srv/Bozza.qX9")}));
}
