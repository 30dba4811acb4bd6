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

namespace {
QString q(const char *s) { return QString::fromUtf8(s); }
} // namespace

// Calling with parameters, reading an object and calling it, assigning; every failure is an OLEException.
TEST(OLEObject, CallsReadsAndAssignsByNameAndThrowsOnAnyFailure)
{
    QTemporaryDir dir;
    const QString native = QDir::toNativeSeparators(dir.filePath(q("Pratiche")));
    const OLEObject fso(q("Scripting.FileSystemObject"));
    fso.call(q("CreateFolder"), {native});
    EXPECT_TRUE(QFileInfo(dir.filePath(q("Pratiche"))).isDir());
    const OLEObject stream = fso.lookup(q("CreateTextFile"), {native + q("\\nota.txt")});
    stream.call(q("Write"), {q("Causa")});
    stream.call(q("Close"));
    EXPECT_EQ(test::readBytes(dir.filePath(q("Pratiche/nota.txt"))), "Causa");
    // Keys that differ in case only are one key once the comparison ignores case.
    const OLEObject dictionary(q("Scripting.Dictionary"));
    dictionary.assign(q("CompareMode"), 1);
    dictionary.call(q("Add"), {q("causa"), 1});
    EXPECT_THROW(dictionary.call(q("Add"), {q("CAUSA"), 2}), OLEException);

    const std::pair<const char *, std::function<void()>> failures[] = {
        {"a program that is not installed", [] { OLEObject(q("Lumetra.NonEsiste")); }},
        {"an unknown member", [&] { fso.lookup(q("NonEsiste")); }},
        {"a member that is no object", [&] { fso.lookup(q("FolderExists"), {native}); }},
        {"a call that fails: the folder is there", [&] { fso.call(q("CreateFolder"), {native}); }},
        {"Microsoft Word, which Wine does not have", [] { WordApplication(); }},
    };
    for (const auto &[what, call] : failures)
        EXPECT_THROW(call(), OLEException) << what;
}
#endif
