// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/ui/ole_object.h"

#include <memory>
#include <objbase.h>
#include <oleauto.h>
#include <string>
#include <vector>

namespace lumetra {

namespace {

QString hex(long hresult) { return QStringLiteral("0x%1").arg(quint32(hresult), 8, 16, QLatin1Char('0')); }

void check(HRESULT hr, const QString &what)
{
    if (FAILED(hr))
        throw OLEException(what, hr);
}

// COM on this thread, once: the windows' thread is a single-threaded
// apartment. Qt's Windows platform may have set it up already (S_FALSE), or
// in another model (RPC_E_CHANGED_MODE): either way COM can be used.
void initialiseCom()
{
    static const HRESULT hr = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(hr) && hr != RPC_E_CHANGED_MODE)
        throw OLEException(QStringLiteral("CoInitializeEx"), hr);
}

// A parameter as automation takes it.
class Argument {
public:
    explicit Argument(const QVariant &value)
    {
        VariantInit(&v);
        switch (value.typeId()) {
        case QMetaType::Bool:
            v.vt = VT_BOOL;
            v.boolVal = value.toBool() ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case QMetaType::Int:
            v.vt = VT_I4;
            v.lVal = value.toInt();
            break;
        case QMetaType::Double:
            v.vt = VT_R8;
            v.dblVal = value.toDouble();
            break;
        case QMetaType::QString: {
            const QString text = value.toString();
            v.vt = VT_BSTR;
            v.bstrVal = SysAllocStringLen(reinterpret_cast<const OLECHAR *>(text.utf16()), UINT(text.size()));
            break;
        }
        default:
            throw OLEException(QStringLiteral("a parameter of type %1").arg(QString::fromLatin1(value.typeName())),
                               DISP_E_TYPEMISMATCH);
        }
    }
    Argument(const Argument &) = delete;
    Argument &operator=(const Argument &) = delete;
    ~Argument() { VariantClear(&v); }

    VARIANT v;
};

// One IDispatch::Invoke; the result is left in *result when one is asked for.
void invoke(IDispatch *dispatch, const QString &member, WORD flags, const OLEParameters &parameters,
            const QVariant *assigned, VARIANT *result)
{
    if (!dispatch)
        throw OLEException(member + QStringLiteral(" on no object"), E_POINTER);
    std::wstring name(member.toStdWString());
    LPOLESTR names[] = {name.data()};
    DISPID id = 0;
    check(dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), member);

    // Automation takes the arguments last first; an assigned value is the
    // named argument DISPID_PROPERTYPUT, before all others.
    std::vector<std::unique_ptr<Argument>> held;
    if (assigned)
        held.push_back(std::make_unique<Argument>(*assigned));
    for (auto it = parameters.crbegin(); it != parameters.crend(); ++it)
        held.push_back(std::make_unique<Argument>(*it));
    std::vector<VARIANT> args;
    for (const auto &a : held)
        args.push_back(a->v);
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS params{args.empty() ? nullptr : args.data(), assigned ? &put : nullptr, UINT(args.size()),
                      assigned ? 1u : 0u};
    EXCEPINFO exception{};
    UINT wrongArgument = 0;
    const HRESULT hr
        = dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, result, &exception, &wrongArgument);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    check(hr, member);
}

} // namespace

OLEException::OLEException(const QString &what, long hresult)
    : std::runtime_error((what + QStringLiteral(": HRESULT ") + hex(hresult)).toStdString()), m_hresult(hresult)
{
}

OLEObject::OLEObject(const QString &programId)
{
    initialiseCom();
    CLSID clsid;
    check(CLSIDFromProgID(reinterpret_cast<LPCOLESTR>(programId.utf16()), &clsid), programId);
    check(CoCreateInstance(clsid, nullptr, CLSCTX_LOCAL_SERVER | CLSCTX_INPROC_SERVER, IID_IDispatch,
                           reinterpret_cast<void **>(&m_dispatch)),
          programId);
}

OLEObject::OLEObject(IDispatch *dispatch) : m_dispatch(dispatch)
{
    if (m_dispatch)
        m_dispatch->AddRef();
}

OLEObject::OLEObject(const OLEObject &other) : OLEObject(other.m_dispatch) {}

OLEObject &OLEObject::operator=(const OLEObject &other)
{
    if (other.m_dispatch)
        other.m_dispatch->AddRef();
    if (m_dispatch)
        m_dispatch->Release();
    m_dispatch = other.m_dispatch;
    return *this;
}

OLEObject::~OLEObject()
{
    if (m_dispatch)
        m_dispatch->Release();
}

OLEObject OLEObject::lookup(const QString &member, const OLEParameters &parameters) const
{
    VARIANT result;
    VariantInit(&result);
    // A property or a method without arguments alike, as scripts reach them.
    invoke(m_dispatch, member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, parameters, nullptr, &result);
    IDispatch *object = nullptr;
    if (result.vt == VT_DISPATCH && result.pdispVal) {
        object = result.pdispVal;
        object->AddRef();
    } else if (result.vt == VT_UNKNOWN && result.punkVal) {
        result.punkVal->QueryInterface(IID_IDispatch, reinterpret_cast<void **>(&object));
    }
    VariantClear(&result);
    if (!object)
        throw OLEException(member + QStringLiteral(" is no object"), DISP_E_TYPEMISMATCH);
    OLEObject found(object);
    object->Release();
    return found;
}

void OLEObject::call(const QString &member, const OLEParameters &parameters) const
{
    VARIANT result;
    VariantInit(&result);
    invoke(m_dispatch, member, DISPATCH_METHOD, parameters, nullptr, &result);
    VariantClear(&result);
}

void OLEObject::assign(const QString &member, const QVariant &value, const OLEParameters &parameters) const
{
    invoke(m_dispatch, member, DISPATCH_PROPERTYPUT, parameters, &value, nullptr);
}

} // namespace lumetra
