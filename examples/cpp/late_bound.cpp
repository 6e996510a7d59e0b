// Late-bound C++ with an event sink: nothing of the component is needed to compile this, as in any language
// that speaks IDispatch. Tavrin.dll must be registered: regsvr32 /n /i:user Tavrin.dll
//
//   late_bound.exe "Provider=...;Data Source=...;Initial Catalog=..."

#include "ado_connection.h"
#include "leaving_sink.h"

#include <cstdio>

// The event interface, as the type library gives it.
static const IID EventInterface = {
    0x51f3b231, 0x8d50, 0x4570, {0x9a, 0x1f, 0x3b, 0xba, 0x5b, 0x5f, 0x9b, 0x33}};

/// Apel(connection, date, year, company). The arguments of IDispatch stand backwards.
static HRESULT CallApel(IDispatch* utile, IDispatch* connection) {
    OLECHAR* name = const_cast<OLECHAR*>(L"Apel");
    DISPID id = 0;
    utile->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    VARIANT arguments[4]{};
    arguments[3].vt = VT_DISPATCH, arguments[3].pdispVal = connection;
    arguments[2].vt = VT_DATE, arguments[2].date = 37953;  // 28 November 2003
    arguments[1].vt = VT_I2, arguments[1].iVal = 2003;
    arguments[0].vt = VT_I4, arguments[0].lVal = 1;
    DISPPARAMS call{arguments, nullptr, 4, 0};
    return utile->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &call, nullptr, nullptr,
                         nullptr);
}

int wmain(int count, wchar_t** arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IDispatch* connection = count == 2 ? OpenConnection(arguments[1]) : nullptr;
    CLSID classId;
    IDispatch* utile = nullptr;
    IConnectionPointContainer* events = nullptr;
    IConnectionPoint* point = nullptr;
    if (connection == nullptr || FAILED(CLSIDFromProgID(L"Tavrin.Utile", &classId)) ||
        FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(&utile))) ||
        FAILED(utile->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&events))) ||
        FAILED(events->FindConnectionPoint(EventInterface, &point)))
        return 1;
    LeavingSink sink(GetCurrentThreadId());
    DWORD cookie = 0;
    point->Advise(&sink, &cookie);

    std::printf("Apel: %08lx\n", static_cast<unsigned long>(CallApel(utile, connection)));
    std::fflush(stdout);
    // The plainest message loop will do: the windows deal with Tab, Enter and the arrows themselves.
    for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0; DispatchMessageW(&message))
        TranslateMessage(&message);
    std::puts("Iesire");
    point->Unadvise(cookie);
    point->Release(), events->Release(), utile->Release(), connection->Release();
    CoUninitialize();
    return 0;
}
