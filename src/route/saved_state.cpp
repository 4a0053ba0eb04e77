#include "route/saved_state.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <string>

#include "open/open.h"

namespace route {
namespace {

/// FNV-1a, 64 bits (Fowler, Noll, Vo): every byte is taken in by an exclusive or and a multiplication.
class Digest {
 public:
  void add(const db::Value& value) {
    if (value.isNull()) return addByte(0);
    if (value.isNumber()) {
      addByte(1);
      return addNumber(std::bit_cast<std::uint64_t>(value.number()));
    }
    const std::string* const words = value.textIfAny();
    const std::string bytes = words == nullptr ? value.text() : std::string();
    const std::string& text = words == nullptr ? bytes : *words;
    addByte(value.isBytes() ? 3 : 2);
    addNumber(text.size());  // so that two fields never run into each other
    for (const char c : text) addByte(static_cast<unsigned char>(c));
  }

  std::uint64_t value() const { return value_; }

 private:
  void addByte(unsigned char byte) { value_ = (value_ ^ byte) * 1099511628211U; }
  void addNumber(std::uint64_t number) {
    for (int shift = 0; shift < 64; shift += 8) addByte(static_cast<unsigned char>(number >> shift & 0xFF));
  }

  std::uint64_t value_ = 14695981039346656037U;
};

}  // namespace

SavedState SavedState::read(db::Database& database, std::string_view table, const db::Sql& sql) {
  const auto records = database.openRecordset(sql);
  std::vector<db::Column> columns;
  for (const db::ColumnDefinition& column : database.tableDefinition(table))
    columns.push_back(records->column(column.name));
  SavedState state;
  for (; !records->eof(); records->moveNext()) {
    Digest digest;
    for (const db::Column column : columns) digest.add(records->value(column));
    state.digests_.push_back(digest.value());
  }
  records->close();
  std::sort(state.digests_.begin(), state.digests_.end());
  return state;
}

SavedState SavedState::read(std::string_view dbPath, std::string_view table, const db::Sql& sql) {
  const auto database = db::openDatabase(dbPath);
  SavedState state = read(*database, table, sql);
  database->close();
  return state;
}

std::size_t SavedState::differences(const SavedState& other) const {
  std::vector<std::uint64_t> same;
  std::set_intersection(digests_.begin(), digests_.end(), other.digests_.begin(), other.digests_.end(),
                        std::back_inserter(same));
  return std::max(count(), other.count()) - same.size();
}

}  // namespace route
