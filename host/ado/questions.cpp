#include "host/ado/questions.h"

#include <algorithm>

namespace tavrin::host {
namespace {

struct Repetitions {
    std::vector<std::wstring> repeated;
    int action = 0;
};

Repetitions& OfProcess() {
    static Repetitions repetitions;
    return repetitions;
}

std::wstring Describe(int field, const std::wstring& property) {
    if (field == Questions::OfRecordset) return L"Recordset." + property;
    if (field == Questions::OfFields) return L"Fields." + property;
    return L"Field(" + std::to_wstring(field) + L")." + property;
}

}  // namespace

void Questions::Note(int field, const wchar_t* property) {
    if (std::exchange(action_, OfProcess().action) != OfProcess().action) asked_.clear();
    std::pair<int, std::wstring> question(field, property);
    if (std::ranges::find(asked_, question) != asked_.end()) {
        OfProcess().repeated.push_back(Describe(field, question.second));
    } else {
        asked_.push_back(std::move(question));
    }
}

std::vector<std::wstring> Questions::TakeRepeated() {
    return std::exchange(OfProcess().repeated, {});
}

void Questions::BeginAction() {
    ++OfProcess().action;
}

}  // namespace tavrin::host
