#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tavrin::host {

/// What is asked of a recordset, of its Fields and of their fields. A property that nothing has changed since
/// it was asked for is to be known to whoever asked: asking again is a call, and through an apartment's proxy
/// a slow one.
class Questions {
  public:
    static constexpr int OfRecordset = -1;
    static constexpr int OfFields = -2;

    /// \param field its place from 0, or one of the above
    void Note(int field, const wchar_t* property);
    /// A call has been made, which may have changed any of them.
    void NoteCall() { asked_.clear(); }

    /// Those asked twice in this process since they were last taken, as "Recordset.EOF".
    static std::vector<std::wstring> TakeRepeated();
    /// The user does something new, before which the host may have done anything.
    static void BeginAction();

  private:
    std::vector<std::pair<int, std::wstring>> asked_;
    int action_ = 0;
};

}  // namespace tavrin::host
