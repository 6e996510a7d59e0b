#pragma once

#include <windows.h>

#include <unknwn.h>

namespace tavrin::host {

/// Makes this process create the host's own Recordset for ADO's class id, for as long as it lives.
/// \throws data::Error
class RecordsetRegistration {
  public:
    RecordsetRegistration();
    ~RecordsetRegistration();
    RecordsetRegistration(const RecordsetRegistration&) = delete;
    RecordsetRegistration& operator=(const RecordsetRegistration&) = delete;

  private:
    DWORD cookie_ = 0;
};

}  // namespace tavrin::host
