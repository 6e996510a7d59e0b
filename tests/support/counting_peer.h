#pragma once

#include <memory>

#include "forms/model/control.h"
#include "forms/model/peer.h"

namespace tavrin::tests {

/// Stands in for what the platform shows of a control, and counts what it is asked.
class CountingPeer : public forms::ControlPeer {
  public:
    /// Gives a control such a peer, which it owns from then on.
    static const CountingPeer* Give(forms::Control& control) {
        auto peer = std::make_unique<CountingPeer>();
        const CountingPeer* given = peer.get();
        control.SetPeer(std::move(peer));
        return given;
    }

    void Changed(forms::Aspect aspect) override {
        ++changes;
        if (aspect == forms::Aspect::Look) ++repaints;
        if (aspect == forms::Aspect::Announcement) ++announced;
    }
    void TakeFocus() override { ++focused; }
    void DropDown() override { ++dropDowns; }

    int changes = 0;
    int repaints = 0;
    int announced = 0;
    int focused = 0;
    int dropDowns = 0;
};

}  // namespace tavrin::tests
