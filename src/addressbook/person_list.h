#pragma once

#include <memory>
#include <string_view>

#include "addressbook/addressbook_statements.h"
#include "data/connection.h"

namespace tavrin::addressbook {

/// The list of persons as one recordset that lives as long as its window: opened, requeried and walked, but
/// never written through. Rows are counted from 1, as the window's grid counts them. Until Create, and after
/// Release, every use fails with error 91; what the provider refuses comes out as data::Error.
class PersonList {
  public:
    void Create(data::Connection& connection);
    void Release();

    /// Closes what was open, and opens the new statement.
    void Load(std::string_view statement);
    void Close();
    void Requery() { Rows().Requery(); }

    /// An unopened list has none.
    bool HasRows() const { return IsOpen() && recordset_->HasRows(); }
    /// There is no current row, because the list is empty.
    bool AtEnd() { return Rows().AtEnd(); }
    data::TablePtr ReadAll() { return Rows().ReadAll(); }

    /// Moves to a row; beyond the last one, which other users' deletions make possible, to the last. A
    /// provider that does not count its rows is taken at the word of the row.
    void MoveTo(int row);
    /// The current row. \throws data::Error 94 where a column is NULL: a text box has no such value.
    Person Current();

  private:
    bool IsOpen() const { return recordset_ != nullptr && recordset_->IsOpen(); }
    data::Recordset& Rows() const;

    std::unique_ptr<data::Recordset> recordset_;
};

/// The row, counted from 1, of the first person of that name; 0 where there is none. Blanks around names do
/// not count.
int FindPerson(const data::Table& persons, std::string_view nume, std::string_view prenume);

}  // namespace tavrin::addressbook
