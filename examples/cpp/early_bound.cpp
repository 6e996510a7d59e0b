// Early-bound C++: the interface comes from a header that widl (or midl) makes of tavrin.idl, so the compiler
// checks the call. Nothing is registered: early_bound.exe.manifest names the component's assembly, and
// Tavrin.dll lies beside the program together with Tavrin.Utile.manifest.
//
//   early_bound.exe "Provider=...;Data Source=...;Initial Catalog=..."

#include "ado_connection.h"
#include "tavrin_interfaces.h"

#include <cstdio>

int wmain(int count, wchar_t** arguments) {
    if (count != 2) return 2;
    // The utilities are windows: they live in a single-threaded apartment, on the thread that creates them.
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);

    IDispatch* connection = OpenConnection(arguments[1]);
    if (connection == nullptr) {
        std::puts("the database cannot be opened");
        return 1;
    }
    _Utile* utile = nullptr;
    HRESULT result = CoCreateInstance(__uuidof(Utile), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_Utile),
                                      reinterpret_cast<void**>(&utile));
    if (FAILED(result)) {
        std::printf("Tavrin.Utile cannot be created: %08lx\n", static_cast<unsigned long>(result));
        return 1;
    }

    // 28 November 2003 as an OLE date: days since 30 December 1899. Then the year of the financial year and
    // the Id of the company. The connection goes by reference, but the component keeps a reference of its
    // own, never the pointer.
    constexpr DATE workingDate = 37953;
    result = utile->Apel(&connection, workingDate, 2003, 1);
    std::printf("Apel: %08lx\n", static_cast<unsigned long>(result));
    std::fflush(stdout);

    // Stands for a program's main window: its loop feeds the utilities' windows, which handle their own keys.
    if (SUCCEEDED(result)) MessageBoxW(nullptr, L"Close the utilities, then press OK.", L"Accounting", MB_OK);

    // Windows that are still open keep the component loaded. Release, then close the connection, then leave
    // COM.
    utile->Release();
    connection->Release();
    CoUninitialize();
    std::puts("done");
    return 0;
}
