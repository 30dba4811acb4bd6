// SPDX-License-Identifier: GPL-3.0-or-later
// The automation wrapper against a real automation server that Windows (and
// Wine) carry: the file system object of the scripting runtime.

#include <QtGlobal>

#ifdef Q_OS_WIN
#include "document/ui/ole_object.h"
#include "document/ui/word_application.h"
#include "support/test_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

using namespace lumetra;
using lumetra::test::u;

// Calling with parameters, reading an object and calling it, assigning; every failure is an OLEException.
TEST(OLEObject, CallsReadsAndAssignsByNameAndThrowsOnAnyFailure)
{
    QTemporaryDir dir;
    const QString native = QDir::toNativeSeparators(dir.filePath(u("Pratiche")));
    const OLEObject fso(u("Scripting.FileSystemObject"));
    fso.call(u("CreateFolder"), {native});
    EXPECT_TRUE(QFileInfo(dir.filePath(u("Pratiche"))).isDir());
    const OLEObject stream = fso.lookup(u("CreateTextFile"), {native + u("\\nota.txt")});
    stream.call(u("Write"), {u("Causa")});
    stream.call(u("Close"));
    EXPECT_EQ(test::readBytes(dir.filePath(u("Pratiche/nota.txt"))), "Causa");
    // Keys that differ in case only are one key once the comparison ignores case.
    const OLEObject dictionary(u("Scripting.Dictionary"));
    dictionary.assign(u("CompareMode"), 1);
    dictionary.call(u("Add"), {u("causa"), 1});
    EXPECT_THROW(dictionary.call(u("Add"), {u("CAUSA"), 2}), OLEException);

    const std::pair<const char *, std::function<void()>> failures[] = {
        {"a program that is not installed", [] { OLEObject(u("Lumetra.NonEsiste")); }},
        {"an unknown member", [&] { fso.lookup(u("NonEsiste")); }},
        {"a member that is no object", [&] { fso.lookup(u("FolderExists"), {native}); }},
        {"a call that fails: the folder is there", [&] { fso.call(u("CreateFolder"), {native}); }},
        {"Microsoft Word, which Wine does not have", [] { WordApplication(); }},
    };
    for (const auto &[what, call] : failures)
        EXPECT_THROW(call(), OLEException) << what;
}
#endif
