#pragma once

#include <windows.h>

#include <ocidl.h>
#include <tavrin_interfaces.h>

#include <memory>

#include "com/apel_arguments.h"
#include "com/event_source.h"
#include "com/failure.h"
#include "com/server.h"
#include "win32/base/unknown_object.h"

namespace tavrin::com {

/// The component's one class: the host calls `Apel` and listens to `Iesire`.
class Utile
    : public win32::UnknownObject<_Utile, IConnectionPointContainer, IProvideClassInfo2, ISupportErrorInfo> {
  public:
    explicit Utile(Server& server);

    // _Utile
    HRESULT STDMETHODCALLTYPE Apel(IDispatch** cnn, DATE argDataProgram, short bExercitiuInCurs,
                                   LONG IdsoCN) noexcept override;

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) noexcept override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD kind, DISPPARAMS* call,
                                     VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) noexcept override;

    // IConnectionPointContainer
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** enumerator) noexcept override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept override;

    // IProvideClassInfo2
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) noexcept override;

    // ISupportErrorInfo
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) noexcept override;

  private:
    win32::Failure OpenUtilities(ApelArguments arguments) noexcept;
    HRESULT InvokeApel(const DISPPARAMS& call, LCID locale, EXCEPINFO* exception, UINT* badArgument);
    win32::ComPtr<IConnectionPoint> MakeConnectionPoint();

    Server& server_;
    win32::ObjectCount::Ticket ticket_;
    std::shared_ptr<EventSource> events_;
};

}  // namespace tavrin::com
