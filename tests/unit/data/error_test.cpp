#include "data/error.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <new>
#include <stdexcept>
#include <vector>

namespace tavrin::data {
namespace {

template <class Exception>
Error CurrentErrorOf(const Exception& exception) {
    try {
        throw exception;
    } catch (...) {
        return CurrentError();
    }
}

TEST(RuntimeError, SpeaksTheUsersLanguage) {
    const Error error = RuntimeError(error_number::DivisionByZero);
    EXPECT_EQ(error.Number(), 11);
    EXPECT_EQ(error.Description(), "Impartire la zero");
}

TEST(RuntimeError, HasWordsOfItsOwnForEachNumberThatTheWindowsRaise) {
    namespace number = error_number;
    std::vector<std::string> texts;
    for (const std::int32_t raised :
         {number::Overflow, number::OutOfMemory, number::DivisionByZero, number::TypeMismatch,
          number::InternalError, number::ObjectNotSet, number::InvalidUseOfNull, number::InvalidFile,
          number::MemberNotSupported, number::NoCurrentRecord, number::ItemNotFound, number::ObjectClosed}) {
        EXPECT_EQ(RuntimeError(raised).Number(), raised);
        texts.push_back(RuntimeError(raised).Description());
    }
    std::ranges::sort(texts);
    EXPECT_EQ(std::ranges::adjacent_find(texts), texts.end());
}

TEST(RuntimeError, EndsWithTheDetail) {
    EXPECT_EQ(RuntimeError(error_number::MemberNotSupported, "Execute").Description(),
              "Obiectul primit nu are membrul cerut: Execute");
}

TEST(RuntimeError, IsInternalWithoutWordsForTheNumber) {
    EXPECT_EQ(RuntimeError(12345).Number(), 12345);
    EXPECT_EQ(RuntimeError(12345).Description(), "Eroare interna");
}

TEST(CurrentError, PassesAnErrorOnAsItIs) {
    const Error error = CurrentErrorOf(Error(-2147217900, "Incorrect syntax"));
    EXPECT_EQ(error.Number(), -2147217900);
    EXPECT_EQ(error.Description(), "Incorrect syntax");
}

TEST(CurrentError, SaysOfOthersWhatUsersUnderstand) {
    EXPECT_EQ(CurrentErrorOf(std::bad_alloc()).Description(), "Memorie insuficienta");
    EXPECT_EQ(CurrentErrorOf(std::runtime_error("odd")).Description(), "Eroare interna");
    EXPECT_EQ(CurrentErrorOf(5).Number(), error_number::InternalError);
}

}  // namespace
}  // namespace tavrin::data
