#include "host/embedded/dialect/expression_translator.h"
#include "host/embedded/dialect/function_names.h"
#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host::dialect {
namespace {

/// Translates one condition, always in parentheses.
class ConditionVisitor {
  public:
    explicit ConditionVisitor(const ExpressionTranslator& translator) : translator_(translator) {}

    Sql operator()(const Comparison& comparison) const {
        return Compared(translator_.Translate(*comparison.left), comparison.comparison,
                        translator_.Translate(*comparison.right));
    }

    Sql operator()(const LikeCondition& like) const {
        const TypedSql text = translator_.Translate(*like.text);
        const TypedSql pattern = translator_.Translate(*like.pattern);
        if (!IsText(text.type) || !IsText(pattern.type)) {
            throw NotUnderstood("LIKE on " + KindName(text.type));
        }
        return FunctionCall(function_name::Like, {text.sql, pattern.sql});
    }

    Sql operator()(const BetweenCondition& between) const {
        const TypedSql value = translator_.Translate(*between.value);
        const std::vector<Sql> bounds{Compared(value, ">=", translator_.Translate(*between.low)),
                                      Compared(value, "<=", translator_.Translate(*between.high))};
        return Parenthesized(Joined(bounds, " AND "));
    }

    Sql operator()(const NullCondition& test) const {
        Sql sql{"(", {}};
        sql += translator_.Translate(*test.value).sql;
        sql += " IS NULL)";
        return sql;
    }

    Sql operator()(const InCondition& in) const {
        const TypedSql value = translator_.Translate(*in.value);
        std::vector<Sql> matches;
        matches.reserve(in.list.size());
        for (const ExpressionPtr& item : in.list) {
            matches.push_back(Compared(value, "=", translator_.Translate(*item)));
        }
        return Parenthesized(Joined(matches, " OR "));
    }

    Sql operator()(const NotCondition& negation) const {
        Sql sql{"(NOT ", {}};
        sql += translator_.Translate(*negation.condition);
        sql += ")";
        return sql;
    }

    Sql operator()(const AndCondition& conjunction) const { return List(conjunction.terms, " AND "); }
    Sql operator()(const OrCondition& disjunction) const { return List(disjunction.terms, " OR "); }

  private:
    static Sql Parenthesized(const Sql& inner) {
        Sql sql{"(", {}};
        sql += inner;
        sql += ")";
        return sql;
    }

    static Sql Compared(TypedSql left, const std::string& comparison, TypedSql right) {
        Unify(left, right);
        Sql sql{"(", {}};
        sql += left.sql;
        if (IsText(left.type)) sql += std::string(" COLLATE ") + function_name::Collation;
        sql += " " + comparison + " ";
        sql += right.sql;
        sql += ")";
        return sql;
    }

    Sql List(const std::vector<ConditionPtr>& terms, std::string_view separator) const {
        std::vector<Sql> pieces;
        pieces.reserve(terms.size());
        for (const ConditionPtr& term : terms)
            pieces.push_back(translator_.Translate(*term));
        return Parenthesized(Joined(pieces, separator));
    }

    const ExpressionTranslator& translator_;
};

}  // namespace

Sql ExpressionTranslator::Translate(const Condition& condition) const {
    return std::visit(ConditionVisitor(*this), condition.content);
}

}  // namespace tavrin::host::dialect
