#include "calculator/entry.h"

#include <utility>

#include "data/text/number_text.h"

namespace tavrin::calculator {

namespace {

constexpr int MaxLength = 15;
constexpr std::size_t LongestNumber = 400;

}  // namespace

Entry::Entry(std::string separator) : separator_(std::move(separator)) {
    if (separator_.empty()) separator_ = ".";
    text_.reserve(LongestNumber);
    Clear();
}

double Entry::Value() const {
    return data::ReadNumber(text_, separator_);
}

bool Entry::TypeDigit(int digit, int decimals) {
    if (startsAnew_) SetZero();
    startsAnew_ = false;
    if (Length() >= MaxLength || FractionIsFull(decimals)) return false;
    if (separatorPending_) {
        // One that was asked for before a number was recalled comes as a second one.
        if (!HasSeparator()) separatorAt_ = text_.size();
        text_ += separator_;
    } else if (Text() == "0") {
        text_.clear();
    }
    text_ += static_cast<char>('0' + digit);
    separatorPending_ = false;
    return true;
}

bool Entry::TypeSeparator() {
    if (HasSeparator() || separatorPending_) return false;
    separatorPending_ = true;
    return true;
}

bool Entry::ChangeSign() {
    if (Text() == "0" || text_.find('-') != std::string::npos) return false;
    text_.insert(text_.begin(), '-');
    if (HasSeparator()) ++separatorAt_;
    return true;
}

void Entry::DropLast() {
    if (Length() == 1) {
        SetZero();
    } else {
        text_.pop_back();
        if (text_.ends_with(separator_)) text_.resize(text_.size() - separator_.size());
        if (text_.size() == separatorAt_) separatorAt_ = std::string::npos;
    }
    separatorPending_ = false;
}

void Entry::SetNumber(double number) {
    data::WriteNumber(text_, number, separator_);
    separatorAt_ = text_.find(separator_);
}

void Entry::Clear() {
    SetZero();
    Restart();
}

int Entry::Length() const {
    const std::size_t separatorExtra = HasSeparator() ? separator_.size() - 1 : 0;
    return static_cast<int>(text_.size() - separatorExtra);
}

bool Entry::FractionIsFull(int decimals) const {
    if (!HasSeparator() || separatorAt_ == 0) return false;
    const std::size_t digits = text_.size() - separatorAt_ - separator_.size();
    // With no decimals the digit that brought the separator along stands; none follows it.
    return static_cast<int>(digits) >= decimals;
}

}  // namespace tavrin::calculator
