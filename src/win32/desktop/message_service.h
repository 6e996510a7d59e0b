#pragma once

#include <windows.h>

#include <string>

#include "forms/model/desktop.h"
#include "shell/message_service.h"
#include "win32/ado/dispatch_object.h"

namespace tavrin::win32 {

/// The system's messages, shown by the class that the host's system has registered for them; where there is
/// none, by a topmost message box of the platform.
class MessageService : public shell::MessageService {
  public:
    /// Makes the external object, if its class is registered.
    explicit MessageService(const forms::Desktop& desktop);

    int ShowMessage(const std::string& prompt, int icon, int buttons, const std::string& title) override;

  private:
    int ShowByService(const std::string& prompt, int icon, int buttons, const std::string& title) const;
    int ShowByPlatform(const std::string& prompt, int icon, int buttons, const std::string& title) const;

    const forms::Desktop& desktop_;
    DispatchObject service_;
};

}  // namespace tavrin::win32
