// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One fixture for widget tests: the program's folder is a temporary directory
// (its per-user data folder the subfolder "utente"),
// the dialogs are answered by the test, and a modal window that the test did
// not expect is closed and reported instead of hanging the run.

#include "core/ui/dialogs.h"
#include "support/test_files.h"

#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <deque>
#include <functional>
#include <gtest/gtest.h>

namespace lumetra::test {

class FakeDialogs : public Dialogs {
public:
    void messageBox(const QString &text) override { messages << text; }
    QString openFile(const QString &filter) override
    {
        filters << filter;
        return next(openAnswers);
    }
    QString saveFile(const QString &filter, const QString &proposedName) override
    {
        filters << filter;
        proposals << proposedName;
        return next(saveAnswers);
    }
    bool printerDialog(QPrinter &printer) override
    {
        const bool answer = next(printAnswers);
        if (answer && configurePrinter)
            configurePrinter(printer);
        return answer;
    }

    QStringList messages;
    QStringList filters;
    QStringList proposals;
    std::deque<QString> openAnswers; // empty text: cancel
    std::deque<QString> saveAnswers; // empty text: cancel
    std::deque<bool> printAnswers; // false: cancel
    std::function<void(QPrinter &)> configurePrinter;

private:
    template <class T>
    static T next(std::deque<T> &answers)
    {
        T answer = answers.empty() ? T{} : answers.front();
        if (!answers.empty())
            answers.pop_front();
        return answer;
    }
};

class UiTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Path in the program's (temporary) folder, where a portable copy keeps
    // utenza.txt too.
    QString folderPath(const QString &name) const { return dir.filePath(name); }
    void writeFile(const QString &name, const QByteArray &bytes) const { writeBytes(folderPath(name), bytes); }
    // Copies a file of tests/data into the program's folder.
    void copyData(const QString &relative, const QString &name) const
    {
        writeFile(name, readBytes(dataPath(relative)));
    }
    // The next modal window that opens is given to handler instead of failing the test.
    void onNextModal(std::function<void(QWidget *)> handler) { m_modalHandlers.push_back(std::move(handler)); }
    // Lets queued events run.
    static void settle(int ms = 0);

    QTemporaryDir dir;
    FakeDialogs fake;
    // The codes Quit was called with.
    QList<int> quits;

private:
    QTimer m_watchdog;
    std::deque<std::function<void(QWidget *)>> m_modalHandlers;
};

} // namespace lumetra::test
