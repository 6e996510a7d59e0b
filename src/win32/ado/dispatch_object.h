#pragma once

#include <windows.h>

#include <oaidl.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "data/error.h"
#include "win32/base/com_ptr.h"
#include "win32/base/variant.h"

namespace tavrin::win32 {

/// A call failed and the object gave no description; the text is the system's for that number.
class UndescribedError : public data::Error {
  public:
    using Error::Error;
};

/// An object reached by the names of its members, each of which is resolved once per object. Every failure is
/// a data::Error with the number and description that the object gave: 91 where there is no object, 438 where
/// it has no such member, UndescribedError where it kept silent.
class DispatchObject {
  public:
    DispatchObject() = default;
    explicit DispatchObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    explicit operator bool() const { return static_cast<bool>(object_); }
    const ComPtr<IDispatch>& Object() const { return object_; }

    template <class... Arguments>
    Variant Get(std::wstring_view property, const Arguments&... arguments) const {
        return InvokeWith(Resolve(property), DISPATCH_PROPERTYGET, arguments...);
    }

    /// An object that a property holds.
    template <class... Arguments>
    DispatchObject GetObject(std::wstring_view property, const Arguments&... arguments) const {
        return DispatchObject(Get(property, arguments...).ToObject());
    }

    void Put(std::wstring_view property, const Variant& value) const;

    template <class... Arguments>
    Variant Call(std::wstring_view method, const Arguments&... arguments) const {
        return InvokeWith(Resolve(method), DISPATCH_METHOD, arguments...);
    }

    template <class... Arguments>
    Variant CallById(DISPID id, const Arguments&... arguments) const {
        return InvokeWith(id, DISPATCH_METHOD, arguments...);
    }

    /// The number of a member, nothing where the object has none of that name.
    std::optional<DISPID> Find(std::wstring_view member) const;

  private:
    /// Arguments are given in the order in which they are written; COM wants them the other way round.
    template <class... Arguments>
    Variant InvokeWith(DISPID id, WORD kind, const Arguments&... arguments) const {
        constexpr std::size_t count = sizeof...(Arguments);
        VARIANT reversed[count + 1];
        std::size_t place = count;
        ((reversed[--place] = arguments.Get()), ...);
        DISPPARAMS parameters{reversed, nullptr, static_cast<UINT>(count), 0};
        return Invoke(id, kind, parameters);
    }

    DISPID Resolve(std::wstring_view member) const;
    HRESULT TryResolve(std::wstring_view member, DISPID& id) const;
    Variant Invoke(DISPID id, WORD kind, DISPPARAMS& parameters) const;

    ComPtr<IDispatch> object_;
    mutable std::map<std::wstring, DISPID, std::less<>> resolved_;
};

}  // namespace tavrin::win32
