#pragma once
// A failure nothing in the program handles: a read past column 55, a store out
// of range, a file that cannot be created. It reaches the application's one
// handler, which tells the user and ends the program with status 1.

#include <QString>
#include <stdexcept>

namespace lumetra {

class UnhandledFailure : public std::runtime_error {
public:
    explicit UnhandledFailure(const QString &reason) : std::runtime_error(reason.toStdString()) {}
    QString reason() const { return QString::fromStdString(what()); }
};

} // namespace lumetra
