#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "addressbook/person.h"
#include "data/connection.h"
#include "shell/host_context.h"

namespace tavrin::addressbook {

/// Whom the list is to show, as the search boxes have it: blank for everybody, "/" for any text.
struct PersonSearch {
    std::string nume;
    std::string prenume;
};

/// The persons in the host's database: the list of those that a search finds, and what changes them. The list
/// is one recordset that lives as long as its window: opened, requeried and walked, but never written
/// through. Rows are counted from 1, as the window's grid counts them. It is opened on the host's connection
/// of that moment. Before the first Load, and after Release, every use of it fails with error 91; what the
/// provider refuses comes out as data::Error.
class PersonStore {
  public:
    explicit PersonStore(const shell::HostContext& context) : context_(context) {}

    /// Closes what was open, and lists whom the search finds.
    void Load(const PersonSearch& search);
    /// Runs again what is open. A list that is not, or that was opened on a connection which is not the
    /// host's any more, is loaded.
    void Refresh(const PersonSearch& search);
    void Release();

    /// Whether the list is open, and where a statement would run now.
    bool IsCurrent() const { return IsOpen() && mark_.IsCurrent(context_); }
    /// An unopened list has none.
    bool HasRows() const { return IsOpen() && recordset_->HasRows(); }
    data::TablePtr ReadAll() { return Rows().ReadAll(); }

    /// Moves to a row; beyond the last one, which other users' deletions make possible, to the last. A
    /// provider that does not count its rows is taken at the word of the row.
    void MoveTo(int row);
    /// Fills in the columns of the current row in their order.
    /// \throws data::Error 94 at the first that is NULL, which no text box can show; the rest stay as they
    /// are
    void Read(Person& person);
    /// Asks the provider only where Read has not got them. \throws data::Error 94 where no statement could
    /// name the current row, because a name is NULL
    void DemandNames();

    /// A new person belongs into whatever book the host is at.
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
