#include "host/embedded/dialect/parser.h"

#include "host/embedded/dialect/expression_parser.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/dialect/token_stream.h"

namespace tavrin::host::dialect {
namespace {

class Parser {
  public:
    Parser(std::string_view statement, CodePage page)
        : tokens_(Tokenize(statement)), expressions_(tokens_, page) {}

    Statement Run() {
        if (tokens_.AtEnd()) throw NoCommandText();
        Statement statement = ParseStatement();
        tokens_.AcceptSymbol(";");
        if (!tokens_.AtEnd()) ThrowTrailing();
        return statement;
    }

  private:
    Statement ParseStatement() {
        if (tokens_.Accept("SELECT")) return ParseSelect();
        if (tokens_.Accept("INSERT")) return ParseInsert();
        if (tokens_.Accept("UPDATE")) return ParseUpdate();
        if (tokens_.Accept("DELETE")) return ParseDelete();
        if (tokens_.Accept("ALTER")) return ParseAlterTable();
        if (tokens_.Accept("CREATE")) return ParseCreateTable();
        if (tokens_.Accept("DROP")) return ParseDropTable();
        if (tokens_.Peek().kind == TokenKind::Word) {
            throw NotUnderstood("a statement that begins with '" + tokens_.Peek().text + "'");
        }
        tokens_.ThrowUnexpected();
    }

    [[noreturn]] void ThrowTrailing() {
        for (const char* const keyword :
             {"SELECT", "INSERT", "UPDATE", "DELETE", "ALTER", "CREATE", "DROP", "EXEC", "EXECUTE"}) {
            if (tokens_.AtKeyword(keyword)) throw NotUnderstood("more than one statement in one command");
        }
        tokens_.ThrowUnexpected();
    }

    SelectStatement ParseSelect() {
        SelectStatement select;
        select.distinct = tokens_.Accept("DISTINCT");
        do {
            select.items.push_back(ParseSelectItem());
        } while (tokens_.AcceptSymbol(","));
        if (!tokens_.Accept("FROM")) return select;
        select.table = ParseTable();
        select.where = ParseWhere();
        if (tokens_.Accept("GROUP")) ParseGroupBy(select);
        if (tokens_.Accept("ORDER")) ParseOrderBy(select);
        return select;
    }

    SelectItem ParseSelectItem() {
        if (tokens_.AcceptSymbol("*")) return {nullptr, {}};
        SelectItem item{expressions_.ParseExpression(), {}};
        if (tokens_.Accept("AS")) {
            item.alias = tokens_.AtText() ? tokens_.Take().text : tokens_.ExpectName();
        } else if (tokens_.AtName()) {
            item.alias = tokens_.Take().text;
        }
        return item;
    }

    ObjectName ParseTable() {
        ObjectName table = tokens_.ExpectObjectName();
        if (tokens_.AtSymbol(",")) throw NotUnderstood("more than one table in FROM");
        if (tokens_.AtKeyword("AS")) throw NotUnderstood("an alias of a table");
        return table;
    }

    ConditionPtr ParseWhere() { return tokens_.Accept("WHERE") ? expressions_.ParseCondition() : nullptr; }

    void ParseGroupBy(SelectStatement& select) {
        tokens_.Expect("BY");
        do {
            select.groupBy.push_back(expressions_.ParseExpression());
        } while (tokens_.AcceptSymbol(","));
    }

    void ParseOrderBy(SelectStatement& select) {
        tokens_.Expect("BY");
        do {
            OrderItem item{expressions_.ParseExpression(), false};
            item.descending = tokens_.Accept("DESC");
            if (!item.descending) tokens_.Accept("ASC");
            select.orderBy.push_back(std::move(item));
        } while (tokens_.AcceptSymbol(","));
    }

    InsertStatement ParseInsert() {
        tokens_.Accept("INTO");
        InsertStatement insert;
        insert.table = tokens_.ExpectObjectName();
        if (tokens_.AtSymbol("(")) insert.columns = ParseNameList();
        if (tokens_.AtKeyword("SELECT")) throw NotUnderstood("INSERT from a query");
        tokens_.Expect("VALUES");
        tokens_.ExpectSymbol("(");
        do {
            insert.values.push_back(expressions_.ParseExpression());
        } while (tokens_.AcceptSymbol(","));
        tokens_.ExpectSymbol(")");
        if (tokens_.AtSymbol(",")) throw NotUnderstood("more than one row in VALUES");
        return insert;
    }

    std::vector<std::string> ParseNameList() {
        std::vector<std::string> names;
        tokens_.ExpectSymbol("(");
        do {
            names.push_back(tokens_.ExpectName());
        } while (tokens_.AcceptSymbol(","));
        tokens_.ExpectSymbol(")");
        return names;
    }

    UpdateStatement ParseUpdate() {
        UpdateStatement update;
        update.table = tokens_.ExpectObjectName();
        tokens_.Expect("SET");
        do {
            update.assignments.push_back(ParseAssignment());
        } while (tokens_.AcceptSymbol(","));
        if (tokens_.AtKeyword("FROM")) throw NotUnderstood("UPDATE with FROM");
        update.where = ParseWhere();
        return update;
    }

    Assignment ParseAssignment() {
        Assignment assignment;
        assignment.column.qualifier = tokens_.ExpectObjectName();
        assignment.column.name = assignment.column.qualifier.parts.back();
        assignment.column.qualifier.parts.pop_back();
        tokens_.ExpectSymbol("=");
        assignment.value = expressions_.ParseExpression();
        return assignment;
    }

    DeleteStatement ParseDelete() {
        tokens_.Accept("FROM");
        DeleteStatement statement;
        statement.table = ParseTable();
        statement.where = ParseWhere();
        return statement;
    }

    AddColumnStatement ParseAlterTable() {
        ExpectTableKeyword("ALTER");
        AddColumnStatement statement;
        statement.table = tokens_.ExpectObjectName();
        for (const char* const unlearned : {"DROP", "ALTER"}) {
            if (tokens_.AtKeyword(unlearned)) throw NotUnderstood("ALTER TABLE other than ADD");
        }
        tokens_.Expect("ADD");
        statement.column = ParseColumnDefinition();
        const ColumnDefinition& column = statement.column;
        if (!column.nullable || column.primaryKey || column.unique) {
            throw NotUnderstood("a constraint on an added column");
        }
        if (tokens_.AtSymbol(",")) throw NotUnderstood("more than one added column");
        return statement;
    }

    CreateTableStatement ParseCreateTable() {
        ExpectTableKeyword("CREATE");
        CreateTableStatement statement;
        statement.table = tokens_.ExpectObjectName();
        tokens_.ExpectSymbol("(");
        do {
            ParseTableElement(statement);
        } while (tokens_.AcceptSymbol(","));
        tokens_.ExpectSymbol(")");
        return statement;
    }

    DropTableStatement ParseDropTable() {
        ExpectTableKeyword("DROP");
        return {tokens_.ExpectObjectName()};
    }

    void ExpectTableKeyword(const std::string& verb) {
        if (!tokens_.AtEnd() && !tokens_.AtKeyword("TABLE"))
            throw NotUnderstood(verb + " of anything but a TABLE");
        tokens_.Expect("TABLE");
    }

    void ParseTableElement(CreateTableStatement& statement) {
        if (tokens_.Accept("PRIMARY")) {
            tokens_.Expect("KEY");
            statement.primaryKey = ParseNameList();
        } else if (tokens_.Accept("UNIQUE")) {
            statement.uniqueKeys.push_back(ParseNameList());
        } else {
            statement.columns.push_back(ParseColumnDefinition());
        }
    }

    ColumnDefinition ParseColumnDefinition() {
        ColumnDefinition column;
        column.name = tokens_.ExpectName();
        column.type = expressions_.ParseType();
        while (ParseColumnConstraint(column))
            continue;
        return column;
    }

    bool ParseColumnConstraint(ColumnDefinition& column) {
        if (tokens_.Accept("NULL")) return true;
        if (tokens_.Accept("NOT")) {
            tokens_.Expect("NULL");
            column.nullable = false;
            return true;
        }
        if (tokens_.Accept("PRIMARY")) {
            tokens_.Expect("KEY");
            column.primaryKey = true;
            return true;
        }
        if (!tokens_.Accept("UNIQUE")) return false;
        column.unique = true;
        return true;
    }

    TokenStream tokens_;
    ExpressionParser expressions_;
};

}  // namespace

Statement Parse(std::string_view statement, CodePage page) {
    return Parser(statement, page).Run();
}

}  // namespace tavrin::host::dialect
