#pragma once

#include <windows.h>

#include <ocidl.h>

#include <atomic>
#include <memory>
#include <type_traits>

namespace tavrin::win32 {

/// Whether an interface, or one that it extends, goes by that id.
template <class Interface>
bool AnswersTo(REFIID id) {
    if (IsEqualIID(id, __uuidof(Interface))) return true;
    if constexpr (std::is_base_of_v<IDispatch, Interface>)
        if (IsEqualIID(id, __uuidof(IDispatch))) return true;
    if constexpr (std::is_base_of_v<IProvideClassInfo, Interface>)
        if (IsEqualIID(id, __uuidof(IProvideClassInfo))) return true;
    return false;
}

// COM's interfaces have no virtual destructor: an object ends in its own Release alone.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The one implementation of IUnknown: counts references, destroys the object with the last, answers for the
/// interfaces listed. The first of them is the object's identity. Starts with one reference (MakeObject).
template <class First, class... Others>
class UnknownObject : public First, public Others... {
  public:
    UnknownObject() = default;
    virtual ~UnknownObject() = default;
    UnknownObject(const UnknownObject&) = delete;
    UnknownObject& operator=(const UnknownObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (IsEqualIID(id, __uuidof(IUnknown)) || AnswersTo<First>(id)) *object = static_cast<First*>(this);
        ((*object == nullptr && AnswersTo<Others>(id) ? void(*object = static_cast<Others*>(this)) : void()),
         ...);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }

    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ULONG left = --references_;
        if (left == 0) std::unique_ptr<UnknownObject>(this).reset();
        return left;
    }

  private:
    std::atomic<ULONG> references_ = 1;
};

#pragma GCC diagnostic pop

/// Counts the objects of a kind that are alive. An object holds a Ticket as a member.
class ObjectCount {
  public:
    class Ticket {
      public:
        explicit Ticket(ObjectCount& count) : count_(count) { ++count_.alive_; }
        ~Ticket() { --count_.alive_; }
        Ticket(const Ticket&) = delete;
        Ticket& operator=(const Ticket&) = delete;

      private:
        ObjectCount& count_;
    };

    long Alive() const { return alive_; }

  private:
    std::atomic<long> alive_ = 0;
};

}  // namespace tavrin::win32
