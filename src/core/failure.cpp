// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/failure.h"

#include <cstdio>

namespace lumetra {

QString failureReason(const std::exception_ptr &failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception &e) {
        return QString::fromStdString(e.what());
    } catch (...) {
        return QStringLiteral("eccezione sconosciuta");
    }
}

std::function<void(const QString &)> &failureHandler()
{
    static std::function<void(const QString &)> handler = [](const QString &reason) {
        std::fprintf(stderr, "Errore imprevisto: %s\n", reason.toLocal8Bit().constData());
    };
    return handler;
}

} // namespace lumetra
