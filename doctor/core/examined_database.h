#pragma once

#include "data/connection.h"

namespace tavrin::doctor {

/// A host's database under examination: its connection, and transactions around what is tried there.
class ExaminedDatabase {
  public:
    virtual ~ExaminedDatabase() = default;

    virtual data::Connection& Statements() = 0;
    /// \throws data::Error where there can be no transaction; nothing may be written then
    virtual void Begin() = 0;
    /// \throws data::Error where the server has ended the transaction by itself
    virtual void RollBack() = 0;
};

/// What is done while this object lives is rolled back when it goes.
class Trial {
  public:
    explicit Trial(ExaminedDatabase& database) : database_(database) { database_.Begin(); }
    ~Trial() {
        try {
            database_.RollBack();
        } catch (...) {
            // After some errors the server has rolled back already. What is left behind would be found at the
            // end.
        }
    }
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

  private:
    ExaminedDatabase& database_;
};

}  // namespace tavrin::doctor
