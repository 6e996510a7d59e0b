#pragma once

#include <windows.h>

#include <oaidl.h>

#include <cstdint>
#include <string>

#include "win32/base/variant.h"

namespace tavrin::host {

/// The arguments of one late-bound call, in the order in which they were written. Those left out read as
/// missing.
class CallArguments {
  public:
    explicit CallArguments(const DISPPARAMS& call) : call_(call) {}

    std::size_t Count() const { return call_.cArgs; }
    bool Has(std::size_t index) const { return !At(index).IsMissing(); }

    /// A plain copy, whatever references lead to it. \throws data::Error
    win32::Variant At(std::size_t index) const;
    std::int32_t LongOr(std::size_t index, std::int32_t otherwise) const;
    std::string Text(std::size_t index) const { return At(index).ToText(); }

    /// Hands a number back through an argument that was passed by reference; others take nothing.
    void GiveBack(std::size_t index, std::int32_t number) const;

  private:
    const VARIANT* Raw(std::size_t index) const;

    const DISPPARAMS& call_;
};

}  // namespace tavrin::host
