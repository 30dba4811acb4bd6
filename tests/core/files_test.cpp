// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/failure.h"
#include "core/files.h"
#include "support/test_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace lumetra;
using namespace Qt::StringLiterals;

// The one door of the program's files: what it reads, and what it refuses before a byte is read (a FIFO would
// block, a device never end).
TEST(Files, TheDoorReadsRegularFilesAndRefusesTheRestNamingThem)
{
    QTemporaryDir dir;
    const auto at = [&](const char *name) { return dir.filePath(QString::fromUtf8(name)); };
    test::writeBytes(at("parcella.qX9"), "***PARCELLA***\r");
    test::writeBytes(at("vuoto.qX9"), "");
    QDir(dir.path()).mkdir(u"cartella.qX9"_s);
    {
        QFile big(at("enorme.qX9"));
        ASSERT_TRUE(big.open(QIODevice::WriteOnly) && big.resize(kDimensioneMassima + 1));
    }
    std::vector<std::pair<QString, const char *>> cases = {
        {at("parcella.qX9"), ""},
        {at("vuoto.qX9"), ""},
        {at("mancante.qX9"), "il file non esiste"},
        {at("cartella.qX9"), "è una cartella"},
        {at("enorme.qX9"), "è troppo grande per essere un file del programma"},
    };
#ifdef Q_OS_UNIX
    // FIFOs, devices and links to them are Unix's.
    ASSERT_EQ(mkfifo(at("tubo.qX9").toLocal8Bit().constData(), 0600), 0);
    ASSERT_EQ(symlink("tubo.qX9", at("collegamento.qX9").toLocal8Bit().constData()), 0);
    cases.insert(cases.end(),
                 {
                     {at("tubo.qX9"), "non è un file regolare"},
                     {at("collegamento.qX9"), "non è un file regolare"}, // a link is what it points to
                     {u"/dev/zero"_s, "non è un file regolare"},
                 });
#endif
    for (const auto &[path, rifiuto] : cases) {
        const LetturaFile lettura = leggiFile(path);
        EXPECT_EQ(lettura.rifiuto, QString::fromUtf8(rifiuto)) << path.toStdString();
        if (!*rifiuto) {
            EXPECT_EQ(lettura.bytes, test::readBytes(path));
            continue;
        }
        // The door for a file the program cannot do without: the failure names the file.
        try {
            readWholeFile(path);
            ADD_FAILURE() << "no failure for " << path.toStdString();
        } catch (const UnhandledFailure &e) {
            EXPECT_EQ(e.reason(),
                      u"impossibile leggere il file %1: %2"_s.arg(QDir::toNativeSeparators(path),
                                                                  QString::fromUtf8(rifiuto)));
        }
    }

#ifdef Q_OS_WIN
    // A file another program holds open and shares with nobody.
    test::writeBytes(at("aperta.qX9"), "***PARCELLA***\r");
    const HANDLE held = CreateFileW(reinterpret_cast<const wchar_t *>(at("aperta.qX9").utf16()), GENERIC_READ, 0,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const QString rifiuto = leggiFile(at("aperta.qX9")).rifiuto;
    CloseHandle(held);
    EXPECT_EQ(rifiuto, u"file in uso da un altro programma"_s);
#else
    // A file the user cannot read: root reads anything, so as nobody, who may look into the folder.
    const bool root = geteuid() == 0;
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0755), 0);
    ASSERT_EQ(chmod(at("parcella.qX9").toLocal8Bit().constData(), 0), 0);
    ASSERT_EQ(root ? seteuid(65534) : 0, 0);
    const QString rifiuto = leggiFile(at("parcella.qX9")).rifiuto;
    ASSERT_EQ(root ? seteuid(0) : 0, 0);
    EXPECT_EQ(rifiuto, u"permesso negato"_s);
#endif
}
