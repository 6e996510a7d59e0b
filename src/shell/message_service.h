#pragma once

#include <string>

namespace tavrin::shell {

/// Icon and button codes of the platform's message box.
namespace message {
inline constexpr int Error = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;
inline constexpr int Ok = 0;
inline constexpr int YesNo = 4;
inline constexpr int AnswerYes = 6;
inline constexpr int AnswerNo = 7;
}  // namespace message

/// Shows the system's messages. Hosts may register a class of their own for it; see win32/message_service.
class MessageService {
  public:
    virtual ~MessageService() = default;

    /// Shows a modal message and answers the code of the pressed button. Texts are UTF-8.
    virtual int ShowMessage(const std::string& prompt, int icon, int buttons, const std::string& title) = 0;
};

}  // namespace tavrin::shell
