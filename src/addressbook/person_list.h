#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "addressbook/addressbook_statements.h"
#include "data/connection.h"
#include "shell/host_context.h"

namespace tavrin::addressbook {

/// The list of persons as one recordset that lives as long as its window: opened, requeried and walked, but
/// never written through. Rows are counted from 1, as the window's grid counts them. It is opened on the
/// host's connection of that moment. Before the first Load, and after Release, every use fails with error 91;
/// what the provider refuses comes out as data::Error.
class PersonList {
  public:
    explicit PersonList(const shell::HostContext& context) : context_(context) {}

    /// Closes what was open, and opens the statement.
    void Load(std::string_view statement);
    /// Runs again what is open. A list that is not, or that was opened on a connection which is not the
    /// host's any more, is loaded.
    void Refresh(std::string_view statement);
    void Release();

    /// Whether the list is open, and where a statement would run now.
    bool IsCurrent() const { return IsOpen() && mark_.IsCurrent(context_); }
    /// \throws data::Error 3709 where a statement would run on another connection than the list's
    void DemandConnection() const { mark_.Demand(context_); }
    /// An unopened list has none.
    bool HasRows() const { return IsOpen() && recordset_->HasRows(); }
    data::TablePtr ReadAll() { return Rows().ReadAll(); }

    /// Moves to a row; beyond the last one, which other users' deletions make possible, to the last. A
    /// provider that does not count its rows is taken at the word of the row.
    void MoveTo(int row);
    /// Fills in the columns of the current row in their order.
    /// \throws data::Error 94 at the first that is NULL, which no text box can show; the rest stay as they
    /// are
    void Read(Person& person) const { ReadColumns(person, Columns.size()); }
    /// \throws data::Error 94 where no statement could name the current row, because a name is NULL
    void DemandNames() const;

  private:
    bool IsOpen() const { return recordset_ != nullptr && recordset_->IsOpen(); }
    data::Recordset& Rows() const;
    void ReadColumns(Person& person, std::size_t count) const;

    const shell::HostContext& context_;
    std::unique_ptr<data::Recordset> recordset_;
    shell::ConnectionMark mark_;  ///< of the connection that the recordset is bound to
};

/// The row, counted from 1, of the first person of that name; 0 where there is none. Blanks around names do
/// not count.
int FindPerson(const data::Table& persons, std::string_view nume, std::string_view prenume);

}  // namespace tavrin::addressbook
