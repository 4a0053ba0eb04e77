#include "bare_postgres.h"

#include <cctype>
#include <cstdlib>
#include <stdexcept>

#include "odbc/data_source.h"
#include "sql/tokens.h"

namespace bench {
namespace {

constexpr const char* insertionName = "insertion";

std::string connectionText(const std::string& source) {
  const db::DataSource keys = db::readDataSource(source);
  return "host=" + keys.value("SERVER") + " dbname=" + keys.value("DATABASE") + " user=" + keys.value("UID") +
         " client_encoding=UTF8";
}

/// The server takes names without quotes for small letters; key words are written in capitals here.
bool needsQuotes(std::string_view name) {
  bool small = false;
  bool capital = false;
  for (const char c : name) {
    small = small || std::islower(static_cast<unsigned char>(c)) != 0;
    capital = capital || std::isupper(static_cast<unsigned char>(c)) != 0;
  }
  return small && capital;
}

std::string written(const db::Token& token) {
  const bool quoted = token.kind == db::TokenKind::Name && needsQuotes(token.text);
  return quoted ? "\"" + std::string(token.text) + "\"" : std::string(token.text);
}

/// A statement in the server's form. A key that is compared with a text is compared without the blanks at its
/// end, as the file's columns are declared to be.
std::string inServersForm(const std::string& sql) {
  const std::vector<db::Token> words = db::significantTokens(sql);
  std::string result;
  for (std::size_t n = 0; n < words.size(); ++n) {
    std::string word = written(words[n]);
    if (n + 2 < words.size() && db::isOperator(words[n + 1], ".")) {
      word += "." + written(words[n + 2]);
      n += 2;
    }
    const bool key =
        n + 2 < words.size() && db::isOperator(words[n + 1], "=") && words[n + 2].kind == db::TokenKind::Text;
    result += key ? "rtrim(" + word + ",' ') " : word + " ";
  }
  return result;
}

/// True for the columns whose values the server tells as numbers: int8, int2, int4, float4, float8.
bool holdsNumbers(const PGresult* result, int column) {
  const Oid type = PQftype(result, column);
  return type == 20 || type == 21 || type == 23 || type == 700 || type == 701;
}

}  // namespace

BarePostgres::BarePostgres(const std::string& source)
    : connection_(PQconnectdb(connectionText(source).c_str()), PQfinish) {
  if (PQstatus(connection_.get()) != CONNECTION_OK)
    throw std::runtime_error(PQerrorMessage(connection_.get()));
}

std::size_t BarePostgres::readAll(const std::string& sql) {
  const Result result = execute(inServersForm(sql));
  const int columns = PQnfields(result.get());
  std::vector<bool> numbers;
  for (int i = 0; i < columns; ++i) numbers.push_back(holdsNumbers(result.get(), i));
  std::size_t bytes = 0;
  for (int row = 0; row < PQntuples(result.get()); ++row)
    for (int i = 0; i < columns; ++i) {
      if (PQgetisnull(result.get(), row, i) != 0) continue;
      const char* const field = PQgetvalue(result.get(), row, i);
      if (numbers[static_cast<std::size_t>(i)])
        bytes += std::strtod(field, nullptr) != 0 ? sizeof(double) : 0;
      else
        bytes += static_cast<std::size_t>(PQgetlength(result.get(), row, i));
    }
  return bytes;
}

Records BarePostgres::records(const std::string& sql) {
  const Result result = execute(inServersForm(sql));
  Records records;
  for (int row = 0; row < PQntuples(result.get()); ++row) {
    records.emplace_back();
    for (int i = 0; i < PQnfields(result.get()); ++i)
      records.back().emplace_back(PQgetvalue(result.get(), row, i));
  }
  return records;
}

void BarePostgres::replace(const std::string& table, const std::string& conditions, const Records& records) {
  const std::string statement = insertion("\"" + table + "\"", records.at(0).size(),
                                          [](std::size_t i) { return "$" + std::to_string(i); });
  execute("BEGIN");
  execute(inServersForm("DELETE FROM " + table + conditions));
  checked(PQprepare(connection_.get(), insertionName, statement.c_str(), 0, nullptr));
  for (const auto& record : records) insert(record);
  execute("COMMIT");
}

void BarePostgres::insert(const std::vector<std::string>& record) {
  std::vector<const char*> fields;
  fields.reserve(record.size());
  for (const std::string& field : record) fields.push_back(field.empty() ? nullptr : field.c_str());
  checked(PQexecPrepared(connection_.get(), insertionName, static_cast<int>(fields.size()), fields.data(),
                         nullptr, nullptr, 0));
}

BarePostgres::Result BarePostgres::execute(const std::string& sql) {
  return checked(PQexec(connection_.get(), sql.c_str()));
}

BarePostgres::Result BarePostgres::checked(PGresult* result) const {
  Result owned(result, PQclear);
  const ExecStatusType status = PQresultStatus(result);
  if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
    throw std::runtime_error(PQerrorMessage(connection_.get()));
  return owned;
}

}  // namespace bench
