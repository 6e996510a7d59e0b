#pragma once

#include <windows.h>

#include <ocidl.h>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "com/event_source.h"
#include "com/server.h"
#include "win32/base/com_ptr.h"
#include "win32/base/translation.h"
#include "win32/base/unknown_object.h"

namespace tavrin::com {

inline void CopyItem(const win32::ComPtr<IConnectionPoint>& point, IConnectionPoint*& target) {
    point.CopyTo(&target);
}

inline void CopyItem(const EventSource::Connection& connection, CONNECTDATA& target) {
    target.dwCookie = connection.cookie;
    win32::ComPtr<IUnknown>(connection.sink).CopyTo(&target.pUnk);
}

/// A COM enumerator over a copy of a list. `Outside` is the type in which the interface returns items, each
/// with a reference of its own.
template <class Interface, class Item, class Outside>
class Enumerator : public win32::UnknownObject<Interface> {
  public:
    Enumerator(Server& server, std::vector<Item> items, std::size_t position = 0)
        : server_(server), ticket_(server.Objects()), items_(std::move(items)), position_(position) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG count, Outside* target, ULONG* fetched) noexcept override {
        if (fetched != nullptr) *fetched = 0;
        if (target == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
        const ULONG given = Available(count);
        for (ULONG i = 0; i < given; ++i)
            CopyItem(items_[position_++], target[i]);
        if (fetched != nullptr) *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
        const ULONG skipped = Available(count);
        position_ += skipped;
        return skipped == count ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE Reset() noexcept override {
        position_ = 0;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Clone(Interface** copy) noexcept override {
        if (copy == nullptr) return E_POINTER;
        *copy = nullptr;
        return win32::Translated([&] {
            *copy = win32::MakeObject<Enumerator>(server_, items_, position_).Detach();
            return S_OK;
        });
    }

  private:
    ULONG Available(ULONG count) const {
        return static_cast<ULONG>(std::min<std::size_t>(count, items_.size() - position_));
    }

    Server& server_;
    win32::ObjectCount::Ticket ticket_;
    std::vector<Item> items_;
    std::size_t position_;
};

using ConnectionPointEnumerator =
    Enumerator<IEnumConnectionPoints, win32::ComPtr<IConnectionPoint>, IConnectionPoint*>;
using ConnectionEnumerator = Enumerator<IEnumConnections, EventSource::Connection, CONNECTDATA>;

}  // namespace tavrin::com
