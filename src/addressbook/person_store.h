#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "addressbook/person.h"
#include "data/connection.h"
#include "shell/host_context.h"

namespace tavrin::addressbook {

/// The text of the search boxes: blank finds everybody, "/" stands for any text.
struct PersonSearch {
    std::string nume;
    std::string prenume;
};

/// The persons in the host's database: the list that a search finds, and the changes to it. The list is one
/// recordset that lives as long as its window: opened, requeried and navigated, but never written through.
/// Rows are counted from 1, as the window's grid counts them. It is opened on the host's connection of that
/// moment. Before the first Load, and after Release, every use of it fails with error 91; what the provider
/// refuses comes out as data::Error.
class PersonStore {
  public:
    explicit PersonStore(const shell::HostContext& context) : context_(context) {}

    /// Closes the open list and opens one of the persons that the search finds.
    void Load(const PersonSearch& search);
    /// Runs the open query again. If none is open, or it was opened on a connection that is no longer the
    /// host's, loads the list.
    void Refresh(const PersonSearch& search);
    void Release();

    /// Whether the list is open on the host's current connection.
    bool IsCurrent() const { return IsOpen() && mark_.IsCurrent(context_); }
    /// An unopened list has none.
    bool HasRows() const { return IsOpen() && recordset_->HasRows(); }
    data::TablePtr ReadAll() { return Rows().ReadAll(); }

    /// Moves to a row, or to the last if there are fewer, as after other users' deletions. If the provider
    /// does not count its rows, the row is not checked.
    void MoveTo(int row);
    /// Fills in the columns of the current row in their order.
    /// \throws data::Error 94 at the first that is NULL, which no text box can show; the rest stay as they
    /// are
    void Read(Person& person);
    /// Asks the provider only where Read has not got them. \throws data::Error 94 where no statement could
    /// name the current row, because a name is NULL
    void RequireNames();

    /// Runs on the host's current connection, whichever the list was read from.
    void Add(const Person& person) const;
    /// The details of the person of that name, in the book that the list was read from.
    /// \throws data::Error 91 without a connection, 3709 where the host has turned to another one
    void Change(const Person& person) const;
    void Remove(std::string_view nume, std::string_view prenume) const;

  private:
    bool IsOpen() const { return recordset_ != nullptr && recordset_->IsOpen(); }
    data::Recordset& Rows() const;
    /// From `first` to the one before `end`.
    void ReadColumns(Person& person, std::size_t first, std::size_t end) const;
    void ReadNames(Person& person);

    const shell::HostContext& context_;
    std::unique_ptr<data::Recordset> recordset_;
    bool hasNames_ = false;       ///< the current row, as far as is known
    shell::ConnectionMark mark_;  ///< of the connection that the recordset is bound to
};

/// The row, counted from 1, of the first person of that name; 0 where there is none. Blanks around names do
/// not count.
int FindPerson(const data::Table& persons, std::string_view nume, std::string_view prenume);

}  // namespace tavrin::addressbook
