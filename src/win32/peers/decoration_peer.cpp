#include "win32/peers/decoration_peer.h"

namespace tavrin::win32 {

DecorationPeer::DecorationPeer(forms::Control& decoration, FormPeer& form)
    : decoration_(decoration), form_(form) {}

void DecorationPeer::Changed(forms::Aspect) {
    // Where it stood before is not known here, so the whole container is.
    InvalidateRect(form_.WindowOf(decoration_.Parent()), nullptr, FALSE);
}

}  // namespace tavrin::win32
