// Opens an ADO connection by its names alone, so that no ADO header is needed. Both C++ examples use it; a
// program that has its connection already passes that one.
#pragma once

#include <windows.h>

#include <oleauto.h>

/// Calls a method with one text. A host would report the error; the examples only hand it on.
inline HRESULT CallWithText(IDispatch* object, const wchar_t* method, const wchar_t* text) {
    OLECHAR* name = const_cast<OLECHAR*>(method);
    DISPID id = 0;
    HRESULT result = object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) return result;
    VARIANT argument{};
    argument.vt = VT_BSTR;
    argument.bstrVal = SysAllocString(text);
    DISPPARAMS call{&argument, nullptr, 1, 0};
    result =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &call, nullptr, nullptr, nullptr);
    SysFreeString(argument.bstrVal);
    return result;
}

/// \return null where it cannot be opened; else the caller's to release
inline IDispatch* OpenConnection(const wchar_t* connectionString) {
    CLSID classId;
    IDispatch* connection = nullptr;
    if (FAILED(CLSIDFromProgID(L"ADODB.Connection", &classId))) return nullptr;
    if (FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(&connection))))
        return nullptr;
    if (SUCCEEDED(CallWithText(connection, L"Open", connectionString))) return connection;
    connection->Release();
    return nullptr;
}
