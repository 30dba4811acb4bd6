// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Windows only. Microsoft Word reached by automation: the application and a
// document of it.

#include "document/ui/ole_object.h"

#include <functional>

namespace lumetra {

class WordApplication : public OLEObject {
public:
    // Starts Word, or reaches the one running; OLEException when there is none.
    WordApplication();

    // Where Word's events would arrive: "DocumentChange" and "Quit" go to
    // their own handler, any other to EventTriggered. A missing handler skips
    // the event; the program sets none.
    QVariant Event_EventTriggered(const QString &name, const OLEParameters &parameters);

    std::function<QVariant(const QString &name, const OLEParameters &parameters)> EventTriggered;
    std::function<void()> DocumentChange;
    std::function<void()> Quit;
};

// A document of Word: it only gives the object its type.
class WordDocument : public OLEObject {
public:
    explicit WordDocument(const OLEObject &object) : OLEObject(object) {}
};

} // namespace lumetra
