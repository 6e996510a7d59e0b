#pragma once

#include <string>
#include <vector>

#include "data/connection.h"

namespace tavrin::verify {

/// Under this name, on the same server, the windows look for the companies.
inline constexpr const char* AdministrationDatabase = "AdmQuadrel";

/// A database of its own on a server that belongs to others, with the administration database that the
/// windows need beside it. What was there before is never touched: where the administration database exists,
/// nothing is made.
class ScratchDatabase {
  public:
    /// \pre name is a plain identifier that no database of the server has
    ScratchDatabase(data::Connection& server, std::string name) : server_(server), name_(std::move(name)) {}

    const std::string& Name() const { return name_; }

    /// Makes both from a script of batches. What it has made before it fails is for Drop.
    /// \throws data::Error or std::runtime_error
    void Make(const std::string& script);

    /// Removes what Make has made, with all connections to it. \return what could not be done, best nothing
    std::vector<std::string> Drop();

  private:
    bool Exists(const std::string& database);
    void Require(const std::string& table);
    void DropOne(const std::string& database);

    data::Connection& server_;
    std::string name_;
    std::vector<std::string> made_;  ///< in the order in which they may appear
};

}  // namespace tavrin::verify
