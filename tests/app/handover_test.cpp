// SPDX-License-Identifier: GPL-3.0-or-later
// One program per user session: a second start hands over to the first.

#include "app/document_handover.h"
#include "app/same_user.h"
#include "editor/ui/finestra_fixture.h"

#include <QCryptographicHash>
#include <QDialog>
#include <QElapsedTimer>
#include <QProcess>
#include <atomic>
#include <future>
#include <mutex>
#include <thread>
#ifdef Q_OS_WIN
#include <QLocalSocket>
#include <QRegularExpression>
#include <windows.h>

#include <aclapi.h>
#else
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

using namespace lumetra;
using namespace lumetra::test;
using Esito = DocumentHandover::Esito;

namespace {

#ifdef Q_OS_UNIX
sockaddr_un indirizzo(const QString &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.toLocal8Bit().constData(), sizeof address.sun_path - 1);
    return address;
}
#endif

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
#ifdef Q_OS_UNIX
    // A socket file left by a program that did not end: nobody answers on it.
    // (A named pipe goes with its program: Windows leaves none behind.)
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const sockaddr_un address = indirizzo(name());
    ASSERT_EQ(::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ::close(fd);
#endif
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
    ASSERT_TRUE(nessunFile(folderPath(u("tubo.qX9"))));
    secondoAvvio({folderPath(u("nome-sbagliato.qX9")), folderPath(u("tubo.qX9"))});
    EXPECT_EQ(fake.messages,
              (QStringList{u("Impossibile aprire il documento nome-sbagliato.qX9:\ril file non esiste."),
                           u("Impossibile aprire il documento tubo.qX9:\r%1.").arg(kRifiuto)}));
    EXPECT_TRUE(EditField1->Text() == u("Causa in corso") && globali().modificato && globali().nome_attuale.isEmpty());
    // The documents a start names: absolute paths, options left out.
    EXPECT_EQ(documentArguments({u("lumetra"), u("Causa.qX9"), u("--style=fusion"), u("/srv/Bozza.qX9")}),
              (QStringList{QDir::current().absoluteFilePath(u("Causa.qX9")),
                           QFileInfo(u("/srv/Bozza.qX9")).absoluteFilePath()}));
}

// Acting as another user takes seteuid, and a listener of another user a Unix socket: these stay on Unix.
#ifdef Q_OS_UNIX

namespace {

constexpr uid_t kNobody = 65534;

// A program of another user (nobody) listening at path, as a hostile one would: it takes whatever a start says,
// and answers "ok".
class Estraneo {
public:
    explicit Estraneo(const QString &path)
    {
        const sockaddr_un address = indirizzo(path);
        if (seteuid(kNobody) != 0)
            return;
        m_fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
        const bool listening
            = ::bind(m_fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 && ::listen(m_fd, 8) == 0;
        if (seteuid(0) != 0 || !listening)
            return;
        m_thread = std::thread([this] {
            while (!m_stop) {
                pollfd p{m_fd, POLLIN, 0};
                if (::poll(&p, 1, 50) <= 0)
                    continue;
                const int client = ::accept(m_fd, nullptr, nullptr);
                char buffer[4096];
                for (pollfd c{client, POLLIN, 0}; ::poll(&c, 1, 1000) > 0;) {
                    const ssize_t n = ::read(client, buffer, sizeof buffer);
                    if (n <= 0)
                        break;
                    const std::lock_guard lock(m_mutex);
                    m_ricevuto.append(buffer, n);
                    if (m_ricevuto.contains("fine\n")) {
                        [[maybe_unused]] const auto w = ::write(client, "ok\n", 3);
                        break;
                    }
                }
                ::close(client);
            }
        });
    }
    ~Estraneo()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        if (m_fd >= 0)
            ::close(m_fd);
    }
    bool inAscolto() const { return m_thread.joinable(); }
    QByteArray ricevuto()
    {
        const std::lock_guard lock(m_mutex);
        return m_ricevuto;
    }

private:
    int m_fd = -1;
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
    std::mutex m_mutex;
    QByteArray m_ricevuto;
};

// The environment of a start, put back afterwards.
class Ambiente {
public:
    Ambiente(std::initializer_list<std::pair<const char *, const char *>> values)
    {
        for (const auto &[name, value] : values) {
            m_prima.emplace_back(name, qgetenv(name), qEnvironmentVariableIsSet(name));
            value ? qputenv(name, value) : qunsetenv(name);
        }
    }
    ~Ambiente()
    {
        for (const auto &[name, value, set] : m_prima)
            set ? qputenv(name, value) : qunsetenv(name);
    }

private:
    std::vector<std::tuple<const char *, QByteArray, bool>> m_prima;
};

} // namespace

// Another user listens first where a start used to look with XDG_RUNTIME_DIR unset (a name in the shared temporary
// folder anyone can compute) and answers "ok" to anything; then squats the folder a start now uses. No start of
// ours hands it a path, and none ends because of it.
TEST_F(Handover, AnotherUserCanNeitherTakeTheHandOverNorStopAStart)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "acting as another user needs root";
    const QString tmp = folderPath(u("tmp")); // shared, as /tmp is
    ASSERT_TRUE(QDir(dir.path()).mkdir(u("tmp")) && chmod(dir.path().toLocal8Bit().constData(), 0755) == 0
                && chmod(tmp.toLocal8Bit().constData(), 01777) == 0);
    const QByteArray tmpdir = tmp.toLocal8Bit();
    const Ambiente ambiente{{"TMPDIR", tmpdir.constData()},
                            {"XDG_RUNTIME_DIR", nullptr},
                            {"USER", "prova"},
                            {"DISPLAY", ":93"},
                            {"WAYLAND_DISPLAY", nullptr}};
    const QString vecchio = tmp + u("/lumetra-prova-")
        + QString::fromLatin1(QCryptographicHash::hash("|:93", QCryptographicHash::Sha1).toHex().left(12));
    Estraneo estraneo(vecchio);
    ASSERT_TRUE(estraneo.inAscolto());

    const QString mia = tmp + u("/lumetra-0");
    EXPECT_TRUE(DocumentHandover::serverName().startsWith(mia + u("/")));
    EXPECT_TRUE(isPrivateFolder(mia));
    {
        DocumentHandover start;
        EXPECT_EQ(start.avvia({u("/a/uno.qX9")}), DocumentHandover::Avvio::InAscolto);
    }
    // A folder of that name that is not ours, or is open to others, is never used: the start runs on its own.
    ASSERT_TRUE(QDir(mia).removeRecursively());
    ASSERT_EQ(seteuid(kNobody), 0);
    const int squat = mkdir(mia.toLocal8Bit().constData(), 0700);
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_EQ(squat, 0);
    EXPECT_EQ(DocumentHandover::serverName(), QString());
    EXPECT_EQ(DocumentHandover().avvia({u("/a/due.qX9")}), DocumentHandover::Avvio::DaSolo);
    ASSERT_TRUE(QDir(mia).removeRecursively() && QDir(tmp).mkdir(u("lumetra-0"))
                && chmod(mia.toLocal8Bit().constData(), 0755) == 0);
    EXPECT_EQ(DocumentHandover::serverName(), QString());
    EXPECT_EQ(estraneo.ricevuto(), QByteArray());
}

// Each end checks the user at the other: a start says nothing to another user's program, and a program hears
// nothing from another user's start, even where the socket is open to all.
TEST_F(Handover, BothEndsTalkOnlyToTheirOwnUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "acting as another user needs root";
    ASSERT_TRUE(chmod(dir.path().toLocal8Bit().constData(), 0777) == 0);
    Estraneo estraneo(folderPath(u("altrui")));
    ASSERT_TRUE(estraneo.inAscolto());
    DocumentHandover verso(folderPath(u("altrui")));
    EXPECT_EQ(verso.consegna({u("/a/uno.qX9")}, 1000), Esito::AltroUtente);
    EXPECT_EQ(verso.avvia({u("/a/uno.qX9")}), DocumentHandover::Avvio::DaSolo); // never displaced, never obeyed
    EXPECT_EQ(estraneo.ricevuto(), QByteArray());

    DocumentHandover first(name());
    avvia(first);
    ASSERT_EQ(chmod(name().toLocal8Bit().constData(), 0777), 0);
    const sockaddr_un address = indirizzo(name());
    ASSERT_EQ(seteuid(kNobody), 0);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const int connected = ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_EQ(connected, 0);
    ASSERT_EQ(::write(fd, "apri /a/due.qX9\nfine\n", 21), 21);
    settle(300);
    char answer[8] = {};
    EXPECT_LE(::recv(fd, answer, sizeof answer, MSG_DONTWAIT), 0); // closed, or silent: no "ok"
    ::close(fd);
    settle(100);
    EXPECT_TRUE(aperti.isEmpty());
}

#endif // Q_OS_UNIX

#ifdef Q_OS_WIN

// The pipe is named after the user and the session, so that two never share one; its lock lies in a folder of the
// user's own; and the pipe a program listens on lets in this user alone.
TEST_F(Handover, OnWindowsThePipeIsTheUsersAndTheSessionsAndOpenToThemAlone)
{
    DWORD session = 0;
    ASSERT_TRUE(ProcessIdToSessionId(GetCurrentProcessId(), &session));
    const QString rendezvous = DocumentHandover::serverName();
    EXPECT_TRUE(QRegularExpression(u("^lumetra-S-1-5-[0-9-]+-%1$").arg(session)).match(rendezvous).hasMatch())
        << rendezvous.toStdString();
    const QString lock = rendezvousLock(rendezvous);
    EXPECT_TRUE(lock.endsWith(u("/Lumetra/") + rendezvous + u(".lock"))) << lock.toStdString();
    EXPECT_TRUE(isPrivateFolder(QFileInfo(lock).path()));
    EXPECT_FALSE(isPrivateFolder(folderPath(u("nessuna"))));

    DocumentHandover first(name());
    avvia(first);
    const std::wstring pipeName = (u("\\\\.\\pipe\\") + name()).toStdWString();
    HANDLE pipe = CreateFileW(pipeName.c_str(), GENERIC_READ | READ_CONTROL, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    PACL dacl = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_EQ(GetSecurityInfo(pipe, SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &dacl, nullptr,
                              &descriptor),
              DWORD(ERROR_SUCCESS));
    CloseHandle(pipe);
    // One entry, that lets in the user of this process.
    HANDLE token = nullptr;
    ASSERT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
    alignas(TOKEN_USER) char user[256];
    DWORD size = sizeof user;
    ASSERT_TRUE(GetTokenInformation(token, TokenUser, user, size, &size));
    CloseHandle(token);
    ASSERT_TRUE(dacl);
    EXPECT_EQ(dacl->AceCount, 1);
    void *ace = nullptr;
    ASSERT_TRUE(GetAce(dacl, 0, &ace));
    EXPECT_EQ(static_cast<ACE_HEADER *>(ace)->AceType, ACCESS_ALLOWED_ACE_TYPE);
    EXPECT_TRUE(
        EqualSid(&static_cast<ACCESS_ALLOWED_ACE *>(ace)->SidStart, reinterpret_cast<TOKEN_USER *>(user)->User.Sid));
    LocalFree(descriptor);
}

#endif // Q_OS_WIN

// Five starts at the same moment, each with a bill, as a desktop opening five bills at once: one program runs,
// and it opens all five.
TEST_F(Handover, FiveStartsAtOnceGiveOneProgramThatOpensEveryBill)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(u("QT_QPA_PLATFORM"), u("offscreen"));
    env.insert(u("QT_LOGGING_RULES"), u("lumetra.handover.debug=true"));
    env.insert(u("QT_FORCE_STDERR_LOGGING"), u("1")); // else a Windows program logs to its debugger
#ifdef Q_OS_WIN
    // The rendezvous is named by the system after this user and session, and no variable moves it: a program of
    // this user's that runs here would take the bills.
    {
        QLocalSocket probe;
        probe.connectToServer(DocumentHandover::serverName());
        if (probe.waitForConnected(500))
            GTEST_SKIP() << "a program of this user runs in this session";
    }
    // A portable copy of the program, its user data beside it.
    QDir(dir.path()).mkdir(u("programma"));
    for (const char *file : {"lumetra.exe", "tariffe_database.txt"})
        ASSERT_TRUE(QFile::copy(QStringLiteral(LUMETRA_BIN_DIR "/") + QLatin1StringView(file),
                                folderPath(u("programma/") + QLatin1StringView(file))));
    writeFile(u("programma/utenza.txt"), "\nAvv. Tizio Caio\n");
    const QString program = folderPath(u("programma/lumetra.exe"));
#else
    QDir(dir.path()).mkpath(u("casa/.local/share/lumetra"));
    QDir(dir.path()).mkdir(u("run"));
    ASSERT_EQ(chmod(folderPath(u("run")).toLocal8Bit().constData(), 0700), 0);
    writeFile(u("casa/.local/share/lumetra/utenza.txt"), "\nAvv. Tizio Caio\n");
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "TMPDIR"})
        env.remove(QString::fromLatin1(name));
    env.insert(u("HOME"), folderPath(u("casa")));
    env.insert(u("XDG_RUNTIME_DIR"), folderPath(u("run")));
    env.insert(u("XDG_SESSION_ID"), u("prova"));
    env.insert(u("USER"), u("prova"));
    const QString program = QStringLiteral(LUMETRA_BIN_DIR "/lumetra");
#endif

    std::vector<std::unique_ptr<QProcess>> starts;
    QStringList bills;
    for (int i = 1; i <= 5; ++i) {
        bills << folderPath(u("Causa%1.qX9").arg(i));
        writeFile(u("Causa%1.qX9").arg(i), "***PARCELLA***\rCausa\r**********\r\r**********\r1000\r60\r");
    }
    for (const QString &bill : bills) {
        starts.push_back(std::make_unique<QProcess>());
        starts.back()->setProcessEnvironment(env);
        starts.back()->start(program, {bill});
    }
    // Four hand over and end; the one that runs opens the five. Slow machines and sanitizers take their time.
    QByteArray log;
    QElapsedTimer clock;
    clock.start();
    const auto finiti = [&] {
        return std::count_if(starts.begin(), starts.end(),
                             [](const auto &p) { return p->state() == QProcess::NotRunning; });
    };
    const auto tutti = [&] {
        return std::all_of(bills.begin(), bills.end(),
                           [&](const QString &b) { return log.contains("opening " + b.toLocal8Bit()); });
    };
    while (clock.elapsed() < 120000 && !(finiti() == 4 && tutti())) {
        settle(50);
        for (const auto &p : starts)
            log += p->readAllStandardError();
    }
    EXPECT_EQ(finiti(), 4);
    // The four that handed over ended well.
    const auto bene = [](const auto &p) {
        return p->state() != QProcess::NotRunning || (p->exitStatus() == QProcess::NormalExit && p->exitCode() == 0);
    };
    EXPECT_TRUE(std::all_of(starts.begin(), starts.end(), bene));
    EXPECT_TRUE(tutti()) << log.constData();
    EXPECT_EQ(log.count("opening "), 5) << log.constData();
    for (const auto &p : starts) {
        p->kill();
        p->waitForFinished(10000);
    }
}
