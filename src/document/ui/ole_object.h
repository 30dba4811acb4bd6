// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Windows only. Automation of another program through COM's IDispatch: an
// object is asked for by its program identifier ("Word.Application"), then its
// members are read, set and called by name, as a script would.

#include <QString>
#include <QVariant>
#include <stdexcept>

struct IDispatch;

namespace lumetra {

// Any failure of an automation call: the program is not installed, a member is
// unknown, the call itself failed. what() names the member and the HRESULT.
class OLEException : public std::runtime_error {
public:
    OLEException(const QString &what, long hresult);
    long hresult() const { return m_hresult; }

private:
    long m_hresult;
};

// The parameters of a call, in order; none of the program's calls has any.
using OLEParameters = QVariantList;

class OLEObject {
public:
    // Starts, or reaches, the program that serves this identifier.
    explicit OLEObject(const QString &programId);
    // An object an automation call gave back; takes a reference of its own.
    explicit OLEObject(IDispatch *dispatch);
    OLEObject(const OLEObject &other);
    OLEObject &operator=(const OLEObject &other);
    virtual ~OLEObject();

    // The three ways of reaching a member: read it as an object (a property or
    // a method that returns one), call it, assign to it.
    OLEObject lookup(const QString &member, const OLEParameters &parameters = {}) const;
    void call(const QString &member, const OLEParameters &parameters = {}) const;
    void assign(const QString &member, const QVariant &value, const OLEParameters &parameters = {}) const;

    // The object as a value, for a typed wrapper of its own.
    IDispatch *dispatch() const { return m_dispatch; }

private:
    IDispatch *m_dispatch = nullptr;
};

} // namespace lumetra
