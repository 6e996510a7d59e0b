#include "proofs/fault_plan.h"

#include <new>
#include <utility>

#include "data/error.h"

namespace tavrin::tests {
namespace {

struct ErrorText {
    std::int32_t number;
    const char* description;
};

ErrorText TextOf(FaultKind kind) {
    switch (kind) {
        case FaultKind::Syntax:
            return {data::error_number::ErrorsInCommand, "Incorrect syntax near the keyword 'FROM'."};
        case FaultKind::Timeout:
            return {-2147217871, "Timeout expired"};
        case FaultKind::Deadlock:
            return {-2147467259, "Your transaction was deadlocked and has been chosen as the victim."};
        case FaultKind::DuplicateKey:
            return {data::error_number::IntegrityViolation, "Cannot insert duplicate key."};
        case FaultKind::ClosedObject:
            return {data::error_number::ObjectClosed, "Operation is not allowed when the object is closed."};
        case FaultKind::Disconnected:
            return {-2147417848, "The object invoked has disconnected from its clients."};
        default:
            return {data::error_number::TypeMismatch, "Tip de data nepotrivit"};
    }
}

bool IsValue(FaultKind kind) {
    return kind == FaultKind::NullValue || kind == FaultKind::EmptyValue || kind == FaultKind::OtherType ||
           kind == FaultKind::BigNumber || kind == FaultKind::HugeNumber;
}

/// Whether a strange answer can be given to such a touch at all.
bool CanAnswer(FaultKind kind, Touch touch) {
    if (IsValue(kind)) return IsStatement(touch) || touch == Touch::Field;
    switch (kind) {
        case FaultKind::FewerRows:
            return IsStatement(touch) || touch == Touch::Move || touch == Touch::Field;
        case FaultKind::FewerFields:
            return IsStatement(touch) || touch == Touch::Shape || touch == Touch::Field;
        case FaultKind::UnknownCount:
            return IsStatement(touch) || touch == Touch::Count;
        case FaultKind::NoResult:
            return IsStatement(touch);
        default:
            return false;
    }
}

}  // namespace

const char* NameOf(FaultKind kind) {
    static constexpr std::array names = {"syntax",        "timeout",      "deadlock",      "duplicate key",
                                         "closed object", "disconnected", "no memory",     "null value",
                                         "empty value",   "other type",   "big number",    "huge number",
                                         "fewer rows",    "one field",    "unknown count", "no result"};
    static_assert(names.size() == AllFaultKinds.size());
    return names[static_cast<std::size_t>(kind)];
}

bool IsError(FaultKind kind) {
    return kind <= FaultKind::OutOfMemory;
}

void ThrowFault(FaultKind kind) {
    if (kind == FaultKind::OutOfMemory) throw std::bad_alloc();
    const ErrorText text = TextOf(kind);
    throw data::Error(text.number, text.description);
}

bool IsQuiet(Touch touch) {
    return touch == Touch::Dialog;
}

bool IsStatement(Touch touch) {
    return touch == Touch::Execute || touch == Touch::Open || touch == Touch::Requery ||
           touch == Touch::ReadAll;
}

void FaultPlan::Start(std::optional<PlannedFault> fault) {
    fault_ = fault;
    touches_.clear();
    statements_.clear();
    struck_ = 0;
}

std::optional<FaultKind> FaultPlan::Meet(Touch touch) {
    touches_.push_back(touch);
    if (!fault_) return std::nullopt;
    const std::size_t number = touches_.size();
    const bool due = fault_->repeat == Repeat::Once ? number == fault_->touch : number >= fault_->touch;
    if (!due) return std::nullopt;
    const FaultKind kind = fault_->kind;
    if (!IsError(kind) && !CanAnswer(kind, touch)) return std::nullopt;
    ++struck_;
    if (IsError(kind)) ThrowFault(kind);
    return kind;
}

std::optional<FaultKind> FaultPlan::MeetStatement(Touch touch, std::string statement) {
    const bool asks = statement.starts_with("SELECT") || statement.starts_with("Select");
    hasWritten = hasWritten || !asks;
    if (whenStatement) whenStatement(statement);
    statements_.push_back(std::move(statement));
    return Meet(touch);
}

}  // namespace tavrin::tests
