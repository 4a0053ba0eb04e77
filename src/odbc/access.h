#pragma once

#include "odbc/product.h"

namespace db {

/// Access files through Microsoft's driver, whose SQL is that of the survey suite. Records have no key of
/// their own there: one is found by all its fields.
class OdbcAccess : public OdbcProduct {
 public:
  std::string quoted(std::string_view name) const override { return "[" + std::string(name) + "]"; }
  /// "=" takes small and capital letters for the same there.
  std::string fieldCondition(const ColumnDefinition& column) const override;
};

/// Access files through MDBTools, which can only read them.
class OdbcMdbTools final : public OdbcAccess {
 public:
  bool givesNumbers() const override { return false; }
  void begin(OdbcConnection& connection) override;
  std::string statement(OdbcConnection& connection, std::string_view sql) override;
};

}  // namespace db
