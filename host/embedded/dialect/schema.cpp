#include "host/embedded/dialect/schema.h"

#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host::dialect {
namespace {

constexpr std::string_view OwnerSchema = "dbo";
constexpr std::string_view OwnerInfix = ".dbo.";

bool IsInformationSchema(const ObjectName& name) {
    const std::size_t count = name.parts.size();
    return count > 1 &&
           SameName(name.parts[count - 2] + "." + name.parts[count - 1], InformationSchemaColumnsName);
}

}  // namespace

const ColumnSchema* TableSchema::Find(std::string_view column) const {
    for (const ColumnSchema& candidate : columns) {
        if (SameName(candidate.name, column)) return &candidate;
    }
    return nullptr;
}

std::optional<std::string> StoredName(const ObjectName& name) {
    const std::vector<std::string>& parts = name.parts;
    if (parts.empty() || parts.size() > 3) return std::nullopt;
    if (IsInformationSchema(name)) {
        const std::string view(InformationSchemaColumnsName);
        return parts.size() == 2 ? view : parts.front() + "." + view;
    }
    if (parts.size() > 1 && !SameName(parts[parts.size() - 2], OwnerSchema)) return std::nullopt;
    // A single name that merely looks like one of three parts must not reach the other database's table.
    if (FoldCase(parts.back()).find(OwnerInfix) != std::string::npos) return std::nullopt;
    if (parts.size() < 3) return parts.back();
    return parts.front() + std::string(OwnerInfix) + parts.back();
}

TableSchema RequireTable(const Schema& schema, const ObjectName& name) {
    const std::optional<std::string> storedName = StoredName(name);
    std::optional<TableSchema> table = storedName ? schema.FindTable(*storedName) : std::nullopt;
    if (!table) throw UnknownTable(name.Text());
    return std::move(*table);
}

}  // namespace tavrin::host::dialect
