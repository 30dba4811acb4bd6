// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A failure nothing in the program handles: a read past column 55, a store out
// of range, a file that cannot be created. It reaches the application's one
// handler, which tells the user and ends the program with status 1 while it is
// starting.

#include <QString>
#include <exception>
#include <functional>
#include <stdexcept>

namespace lumetra {

class UnhandledFailure : public std::runtime_error {
public:
    explicit UnhandledFailure(const QString &reason) : std::runtime_error(reason.toStdString()) {}
    QString reason() const { return QString::fromStdString(what()); }
};

// The reason of a failure, in the words the user reads.
QString failureReason(const std::exception_ptr &failure);

// The one handler of failures. The application puts its own in place; until
// then the reason goes to standard error.
std::function<void(const QString &reason)> &failureHandler();

} // namespace lumetra
