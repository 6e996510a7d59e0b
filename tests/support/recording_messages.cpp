#include "support/recording_messages.h"

#include <ostream>

namespace tavrin::tests {

namespace {

class RecordingService : public shell::MessageService {
  public:
    explicit RecordingService(RecordingMessages& messages) : messages_(messages) {}

    int ShowMessage(const std::string& prompt, int icon, int buttons, const std::string& title) override {
        messages_.shown.push_back({prompt, icon, buttons, title});
        if (messages_.whileShowing) messages_.whileShowing();
        if (messages_.answers.empty()) return buttons == shell::message::YesNo ? shell::message::AnswerNo : 1;
        const int answer = messages_.answers.front();
        messages_.answers.pop_front();
        return answer;
    }

  private:
    RecordingMessages& messages_;
};

}  // namespace

std::unique_ptr<shell::MessageService> RecordingMessages::CreateService() {
    ++created;
    return std::make_unique<RecordingService>(*this);
}

std::ostream& operator<<(std::ostream& stream, const ShownMessage& message) {
    return stream << "\"" << message.prompt << "\" icon " << message.icon << " buttons " << message.buttons
                  << " title \"" << message.title << "\"";
}

}  // namespace tavrin::tests
