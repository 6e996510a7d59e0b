#pragma once

#include "host/embedded/code_page.h"
#include "host/embedded/dialect/syntax.h"
#include "host/embedded/dialect/token_stream.h"

namespace tavrin::host::dialect {

/// Reads scalar expressions and search conditions off a statement's tokens.
class ExpressionParser {
  public:
    /// Texts without N pass through the code page; names and texts with N are Unicode.
    ExpressionParser(TokenStream& tokens, CodePage page) : tokens_(tokens), page_(page) {}

    ExpressionPtr ParseExpression();
    ConditionPtr ParseCondition();
    TypeName ParseType();

  private:
    ConditionPtr ParseConjunction();
    ConditionPtr ParseNegation();
    ConditionPtr ParsePredicate();
    ConditionPtr ParseLike(ExpressionPtr text);
    ConditionPtr ParseBetween(ExpressionPtr value);
    ConditionPtr ParseIn(ExpressionPtr value);
    ConditionPtr ParseNullTest(ExpressionPtr value);
    ConditionPtr ParseComparison(ExpressionPtr left);
    bool AtConditionInParentheses() const;

    ExpressionPtr ParseSigned();
    ExpressionPtr ParseParenthesized();
    ExpressionPtr ParseConversion();
    ExpressionPtr ParseCall();
    ExpressionPtr ParseColumn();
    int ParseSmallNumber();

    TokenStream& tokens_;
    CodePage page_;
    int depth_ = 0;
};

}  // namespace tavrin::host::dialect
