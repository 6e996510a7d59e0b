// Errors in the report's language.
#include "doctor/core/error_words.h"

#include <gtest/gtest.h>

namespace tavrin::doctor {
namespace {

TEST(ErrorWords, OfTheComponentAreInBothLanguages) {
    const Text words = WordsOf(data::RuntimeError(data::error_number::MemberNotSupported, "GetRows"));
    EXPECT_EQ(words.english, "the object lacks the member that is asked for: GetRows");
    EXPECT_EQ(words.romanian, "obiectul primit nu are membrul cerut: GetRows");
}

TEST(ErrorWords, OfAResultThatNobodyDescribesAreInBothLanguages) {
    const std::string said =
        std::string("ADODB.Connection: ") + std::string(data::NamelessResult) + "80004005";
    const Text words = WordsOf({-2147467259, said});
    EXPECT_EQ(words.english, "ADODB.Connection: error 0x80004005");
    EXPECT_EQ(words.romanian, "ADODB.Connection: eroarea 0x80004005");
}

TEST(ErrorWords, OfAProviderStayAsTheyAre) {
    EXPECT_EQ(WordsOf({-2147217865, "Invalid object name"}), Same("Invalid object name"));
    EXPECT_EQ(WordsOf({data::error_number::ObjectClosed, "Operation is not allowed"}),
              Same("Operation is not allowed"))
        << "ADO has numbers of the component's";
}

}  // namespace
}  // namespace tavrin::doctor
