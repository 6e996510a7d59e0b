#pragma once

#include <windows.h>

#include <oaidl.h>

#include <cstddef>
#include <span>
#include <type_traits>

#include "data/error.h"
#include "host/automation/call_arguments.h"
#include "win32/base/com_ptr.h"
#include "win32/base/unknown_object.h"
#include "win32/base/variant.h"

namespace tavrin::host {

class ScriptObject;

/// What a row of an object's table of members stands for.
enum class Access : WORD { Call = DISPATCH_METHOD, Get = DISPATCH_PROPERTYGET, Put = DISPATCH_PROPERTYPUT };

struct Member {
    const wchar_t* name;
    DISPID id;
    Access access;
    std::size_t maxArguments;
    win32::Variant (*run)(ScriptObject& object, const CallArguments& arguments);
};

/// An object that is reached by the names of its members alone. A derived class lists them in a table; what
/// they throw reaches the caller with number and description.
class ScriptObject : public win32::UnknownObject<IDispatch> {
  public:
    /// Answers, besides COM's interfaces, for NativeId: the object itself.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) noexcept override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD kind, DISPPARAMS* call,
                                     VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) noexcept override;

    /// The host's own object behind an IDispatch, null where it is another's.
    static win32::ComPtr<ScriptObject> From(const win32::ComPtr<IDispatch>& object);

  protected:
    virtual std::span<const Member> Members() const = 0;
    /// Sees every use of a member before it is run.
    virtual void OnUse(const Member& member) { (void)member; }
    /// Sees every error before the caller does.
    virtual void OnFailure(const data::Error& error) { (void)error; }

  private:
    const Member* Find(DISPID id, WORD kind) const;
    void RunMember(const Member& member, const DISPPARAMS& call, VARIANT* result);
};

/// Makes a member function the `run` of a row.
template <auto Method>
struct RunMethod;
template <class Object, win32::Variant (Object::*Method)(const CallArguments&)>
struct RunMethod<Method> {
    static win32::Variant Run(ScriptObject& object, const CallArguments& arguments) {
        return (static_cast<Object&>(object).*Method)(arguments);
    }
};
template <auto Method>
inline constexpr auto Run = &RunMethod<Method>::Run;

/// The host's own object of that class, null where it is another's.
template <class Object>
win32::ComPtr<Object> NativeObject(const win32::ComPtr<IDispatch>& object) {
    return win32::ComPtr<Object>(dynamic_cast<Object*>(ScriptObject::From(object).Get()));
}

/// The object as scripts are given it.
template <class Object>
win32::Variant AsVariant(const win32::ComPtr<Object>& object) {
    return win32::Variant(win32::ComPtr<IDispatch>(object));
}

}  // namespace tavrin::host
