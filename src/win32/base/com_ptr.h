#pragma once

#include <windows.h>

#include <unknwn.h>

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace tavrin::win32 {

/// Owns one reference to a COM object.
template <class Interface>
class ComPtr {
  public:
    ComPtr() = default;
    ComPtr(std::nullptr_t) {}  // NOLINT(google-explicit-constructor)
    explicit ComPtr(Interface* object) : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class Derived, class = std::enable_if_t<std::is_convertible_v<Derived*, Interface*>>>
    ComPtr(const ComPtr<Derived>& other) : ComPtr(other.Get()) {}  // NOLINT(google-explicit-constructor)
    ~ComPtr() { Reset(); }

    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that the caller already holds.
    static ComPtr Attach(Interface* object) {
        ComPtr owner;
        owner.object_ = object;
        return owner;
    }
    Interface* Detach() { return std::exchange(object_, nullptr); }
    void Reset() {
        if (Interface* object = Detach()) object->Release();
    }

    Interface* Get() const { return object_; }
    Interface* operator->() const { return object_; }
    Interface& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

    /// For calls that give a reference back: empties the owner first.
    Interface** Receive() {
        Reset();
        return &object_;
    }
    void** ReceiveVoid() { return reinterpret_cast<void**>(Receive()); }

    /// The object's other interface, null where it has none.
    template <class Other>
    ComPtr<Other> As() const {
        ComPtr<Other> other;
        if (object_ != nullptr) object_->QueryInterface(__uuidof(Other), other.ReceiveVoid());
        return other;
    }

    /// Hands a further reference to the outside. \pre target is not null
    HRESULT CopyTo(Interface** target) const {
        *target = object_;
        if (object_ != nullptr) object_->AddRef();
        return S_OK;
    }

  private:
    Interface* object_ = nullptr;
};

/// Makes an object of this program's own, which starts with one reference: the result's.
template <class Object, class... Arguments>
ComPtr<Object> MakeObject(Arguments&&... arguments) {
    return ComPtr<Object>::Attach(std::make_unique<Object>(std::forward<Arguments>(arguments)...).release());
}

}  // namespace tavrin::win32
