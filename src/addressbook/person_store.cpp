#include "addressbook/person_store.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "addressbook/addressbook_statements.h"
#include "addressbook/text_rules.h"
#include "data/error.h"
#include "data/text/trim.h"

namespace tavrin::addressbook {

namespace {

bool IsNamed(const data::Value& value, std::string_view name) {
    // A text is compared where it lies: the search goes through every row of a long list.
    if (const auto* text = std::get_if<std::string>(&value.Content())) return data::Trimmed(*text) == name;
    return data::Trimmed(value.ToText()) == name;
}

std::string StatementOf(const PersonSearch& search) {
    return ListStatement(SearchPattern(search.nume), SearchPattern(search.prenume));
}

}  // namespace

void PersonStore::Load(const PersonSearch& search) {
    hasNames_ = false;
    if (IsOpen()) recordset_->Close();
    data::Connection& connection = context_.Database();
    if (recordset_ == nullptr || !mark_.IsCurrent(context_)) {
        recordset_ = connection.Adopt(std::move(recordset_));
        mark_.Set(context_);
    }
    recordset_->Open(StatementOf(search));
}

void PersonStore::Refresh(const PersonSearch& search) {
    if (IsCurrent()) {
        hasNames_ = false;
        recordset_->Requery();
    } else {
        Load(search);
    }
}

void PersonStore::Release() {
    hasNames_ = false;
    recordset_.reset();
}

data::Recordset& PersonStore::Rows() const {
    if (!recordset_) throw data::ObjectNotSet();
    return *recordset_;
}

void PersonStore::MoveTo(int row) {
    hasNames_ = false;
    Rows().MoveFirst();
    const std::int64_t last = recordset_->RecordCount();
    const std::int64_t reached = last > 0 ? std::min<std::int64_t>(row, last) : row;
    recordset_->Move(std::max<std::int64_t>(reached, 1) - 1);
}

void PersonStore::ReadColumns(Person& person, std::size_t first, std::size_t end) const {
    for (std::size_t column = first; column < end; ++column) {
        const data::Value value = Rows().Field(Columns[column]);
        if (value.IsNull()) throw data::RuntimeError(data::error_number::InvalidUseOfNull);
        person[column] = value.ToText();
    }
}

void PersonStore::ReadNames(Person& person) {
    ReadColumns(person, 0, FirstDetailColumn);
    hasNames_ = true;
}

void PersonStore::Read(Person& person) {
    ReadNames(person);
    ReadColumns(person, FirstDetailColumn, Columns.size());
}

void PersonStore::RequireNames() {
    if (hasNames_) return;
    Person person;
    ReadNames(person);
}

void PersonStore::Add(const Person& person) const {
    context_.Database().Execute(InsertStatement(person));
}

void PersonStore::Change(const Person& person) const {
    mark_.RequireCurrent(context_);
    context_.Database().Execute(UpdateStatement(person));
}

void PersonStore::Remove(std::string_view nume, std::string_view prenume) const {
    context_.Database().Execute(DeleteStatement(nume, prenume));
}

int FindPerson(const data::Table& persons, std::string_view nume, std::string_view prenume) {
    if (persons.FieldCount() <= PrenumeColumn) return 0;
    const std::string_view wantedNume = data::Trimmed(nume);
    const std::string_view wantedPrenume = data::Trimmed(prenume);
    for (std::size_t row = 0; row < persons.RowCount(); ++row) {
        if (IsNamed(persons.At(row, NumeColumn), wantedNume) &&
            IsNamed(persons.At(row, PrenumeColumn), wantedPrenume)) {
            return static_cast<int>(row) + 1;
        }
    }
    return 0;
}

}  // namespace tavrin::addressbook
