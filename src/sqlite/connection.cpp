#include "sqlite/connection.h"

#include <algorithm>
#include <cctype>
#include <new>
#include <utility>

#include "engine/sqlite_error.h"
#include "platform/files.h"
#include "sql/tokens.h"

namespace db {
namespace {

/// How long a connection waits for locks, all its statements together: an act of the operator has one.
constexpr std::chrono::milliseconds lockWait(3000);

/// How long it sleeps before it asks for a lock again.
constexpr int lockPause = 20;

/// What "PRAGMA synchronous" answers where even the end of the journal is waited for.
constexpr double everySync = 3;

/// Turns the optimizations named by these bits off, for SQLITE_TESTCTRL_OPTIMIZATIONS: Bloom filters.
constexpr int withoutBloomFilter = 0x00080000;

/// SQLite's path: absolute, so that no name means something special to SQLite and a change of folder does no
/// harm.
std::string enginePath(std::string_view file) {
  std::error_code ignored;
  return platform::pathText(std::filesystem::absolute(platform::nativePath(file), ignored));
}

/// The name by which SQLite opens a file that nobody changes meanwhile, without any lock.
std::string unchangingFile(const std::string& path) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  std::string result = path.starts_with('/') ? "file://" : "file:///";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = std::isalnum(byte) != 0 || c == '/' || c == ':' || c == '.' || c == '-' || c == '_';
    if (c == '\\')
      result += '/';
    else if (plain)
      result += c;
    else
      result.append(1, '%').append(1, digits[byte / 16]).append(1, digits[byte % 16]);
  }
  return result + "?immutable=1";
}

bool holdsStatement(std::string_view sql) {
  const std::vector<Token> rest = significantTokens(sql);
  return std::any_of(rest.begin(), rest.end(), [](const Token& token) { return !isOperator(token, ";"); });
}

}  // namespace

Value columnValue(sqlite3_stmt* statement, int column) {
  const int type = sqlite3_column_type(statement, column);
  switch (type) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return wholeNumber(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement, column);
    default:
      break;
  }
  const bool isBytes = type == SQLITE_BLOB;
  const void* const at = isBytes ? sqlite3_column_blob(statement, column)
                                 : static_cast<const void*>(sqlite3_column_text(statement, column));
  if (at == nullptr && sqlite3_errcode(sqlite3_db_handle(statement)) == SQLITE_NOMEM) throw std::bad_alloc();
  std::string content;
  if (at != nullptr)
    content.assign(static_cast<const char*>(at),
                   static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
  return isBytes ? Value(Bytes{std::move(content)}) : Value(std::move(content));
}

std::vector<std::string> columnNames(sqlite3_stmt* statement) {
  std::vector<std::string> names;
  for (int i = 0; i < sqlite3_column_count(statement); ++i) {
    const char* name = sqlite3_column_name(statement, i);
    names.emplace_back(name == nullptr ? "" : name);
  }
  return names;
}

SqliteConnection::SqliteConnection(std::string_view file, bool create) : Link(file), patience_(lockWait) {
  const std::string name = enginePath(file);
  openFile(name, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (create ? SQLITE_OPEN_CREATE : 0));
  if (isLogOutOfReach()) {
    sqlite3_close_v2(handle_);
    openFile(unchangingFile(name), SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI);
  }
  sqlite3_extended_result_codes(handle_, 1);
  sqlite3_busy_handler(handle_, waitForLock, this);
  // A name in double quotes that is no column is a fault and no text.
  sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  // SQLite 3.40 puts a Bloom filter before an index that it makes up for a join, and hashes texts by their
  // length: texts that differ in trailing blanks would not be found. Without the filter they are.
  sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, handle_, withoutBloomFilter);
  try {
    prepareSettings();
  } catch (...) {
    sqlite3_close_v2(handle_);
    throw;
  }
}

void SqliteConnection::openFile(const std::string& name, int flags) {
  const int code = sqlite3_open_v2(name.c_str(), &handle_, flags, nullptr);
  if (code == SQLITE_OK) return;
  const Error failure = sqliteError(code, handle_ ? sqlite3_errmsg(handle_) : sqlite3_errstr(code), file());
  sqlite3_close_v2(handle_);
  throw Error(failure);
}

/// True where the file has a write-ahead log that holds nothing and that SQLite cannot share with others.
bool SqliteConnection::isLogOutOfReach() {
  const int code = sqlite3_exec(handle_, "PRAGMA schema_version", nullptr, nullptr, nullptr) & 0xff;
  if (code != SQLITE_CANTOPEN && code != SQLITE_READONLY) return false;
  std::error_code ignored;
  const auto log = platform::nativePath(file() + "-wal");
  return !std::filesystem::exists(log, ignored) || std::filesystem::file_size(log, ignored) == 0;
}

/// "Saved" is told only when the end of the journal, too, is safe on disk, so a connection that cannot be set
/// so (another program has locked the file) is none. A save's pages fit into the cache, so each of them is
/// written once.
void SqliteConnection::prepareSettings() {
  run("PRAGMA synchronous=EXTRA");
  run("PRAGMA cache_size=-8192");
  const SqliteStatement asked = prepare("PRAGMA synchronous");
  if (!step(asked.get()) || columnValue(asked.get(), 0).number() < everySync)
    throw error("を、保存を確実にする設定で開けません。");
}

int SqliteConnection::waitForLock(void* connection, int) {
  std::chrono::milliseconds& patience = static_cast<SqliteConnection*>(connection)->patience_;
  if (patience.count() <= 0) return 0;
  const auto start = std::chrono::steady_clock::now();
  sqlite3_sleep(lockPause);
  patience -= std::chrono::ceil<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
  return 1;
}

SqliteConnection::~SqliteConnection() {
  try {
    whole_ ? discard() : close();
  } catch (const Error&) {
    // Nobody is left to be told; close has already rolled back what could not be committed.
  }
}

SqliteStatement SqliteConnection::prepare(std::string_view sql) {
  requireOpen();
  const char* rest = nullptr;
  sqlite3_stmt* raw = nullptr;
  const int code = sqlite3_prepare_v2(handle_, sql.data(), static_cast<int>(sql.size()), &raw, &rest);
  if (code != SQLITE_OK) raise(code);
  SqliteStatement statement(raw);
  if (!statement) throw error("への SQL 文が空です。");
  if (holdsStatement(sql.substr(static_cast<std::size_t>(rest - sql.data()))))
    throw error("への SQL 文は一度に一つだけです。二つめ以降があるため実行しませんでした。");
  return statement;
}

bool SqliteConnection::step(sqlite3_stmt* statement, std::string_view table) {
  requireOpen();
  const bool gathering = isGathering();
  const int code = sqlite3_step(statement);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  const Error failure = sqliteError(code, sqlite3_errmsg(handle_), file(), table);
  sqlite3_reset(statement);
  settle(code, gathering);
  throw failure;
}

void SqliteConnection::run(sqlite3_stmt* statement, std::string_view table) {
  while (step(statement, table)) {
  }
  sqlite3_reset(statement);
}

void SqliteConnection::run(std::string_view sql) { run(prepare(sql).get()); }

void SqliteConnection::gather() {
  requireOpen();
  requireNothingLost();
  if (isGathering()) return;
  rollBack_ = prepare("ROLLBACK");  // there may be no memory for it later
  run("BEGIN IMMEDIATE");
}

void SqliteConnection::keepWhole() {
  gather();
  whole_ = true;
}

WriteBar SqliteConnection::writeBar() {
  if (!isOpen() || isGathering()) return WriteBar::None;
  if (sqlite3_db_readonly(handle_, "main") == 1) return WriteBar::ReadOnly;
  const auto patience = std::exchange(patience_, {});
  const int code = sqlite3_exec(handle_, "BEGIN IMMEDIATE; ROLLBACK", nullptr, nullptr, nullptr) & 0xff;
  patience_ = patience;
  return code == SQLITE_BUSY || code == SQLITE_LOCKED ? WriteBar::Locked : WriteBar::None;
}

void SqliteConnection::requireDone(int code, std::string_view table) {
  if (code != SQLITE_OK) raise(code, table);
}

std::vector<ColumnDefinition> SqliteConnection::columns(std::string_view table) {
  constexpr int nameColumn = 1;
  constexpr int typeColumn = 2;
  constexpr int hiddenColumn = 6;
  const SqliteStatement statement = prepare("PRAGMA table_xinfo(" + quotedName(table) + ")");
  std::vector<ColumnDefinition> result;
  while (step(statement.get())) {
    if (sqlite3_column_int(statement.get(), hiddenColumn) == 1) continue;
    result.push_back(
        {columnValue(statement.get(), nameColumn).text(), columnValue(statement.get(), typeColumn).text()});
  }
  return result;
}

/// All pages in one step: the readers' lock is held until the last of them.
void SqliteConnection::copyInto(SqliteConnection& target) {
  requireOpen();
  target.requireOpen();
  sqlite3_backup* const copy = sqlite3_backup_init(target.handle_, "main", handle_, "main");
  if (copy == nullptr) target.raise(sqlite3_errcode(target.handle_));
  const int code = sqlite3_backup_step(copy, -1);
  sqlite3_backup_finish(copy);
  if (code != SQLITE_DONE) throw Error(sqliteError(code, sqlite3_errstr(code), file()));
}

void SqliteConnection::close() {
  if (!isOpen()) return;
  resetStatements();
  const std::optional<Error> failure = commit();
  rollBack_.reset();
  sqlite3_close_v2(handle_);
  handle_ = nullptr;
  if (failure) throw Error(*failure);
}

void SqliteConnection::discard() {
  if (!isOpen()) return;
  resetStatements();
  rollBack();
  rollBack_.reset();
  sqlite3_close_v2(handle_);
  handle_ = nullptr;
}

void SqliteConnection::raise(int code, std::string_view table) {
  const Error failure = sqliteError(code, sqlite3_errmsg(handle_), file(), table);
  settle(code, isGathering());
  throw Error(failure);
}

/// After a failure of the medium, or of anything where writing is kept as a whole, nothing of what was
/// gathered may stay; after any other failure all of it stays, unless the engine itself has rolled back.
void SqliteConnection::settle(int code, bool gathering) {
  if (!gathering) return;
  const bool loses = whole_ || isMediumFailure(code);
  if (loses) rollBack();
  if (loses || !isGathering()) lost_ = true;
}

std::optional<Error> SqliteConnection::commit() {
  if (lost_) {
    rollBack();
    return lostError();
  }
  if (!isGathering()) return std::nullopt;
  const int code = sqlite3_exec(handle_, "COMMIT", nullptr, nullptr, nullptr);
  if (code == SQLITE_OK) return std::nullopt;
  // The journal is gone already: what was saved stands, unless the power fails before the folder is written.
  const bool unsettled = code == SQLITE_IOERR_DIR_FSYNC;
  const std::string words = sqlite3_errmsg(handle_);
  rollBack();
  return unsettled ? unsettledError(words) : sqliteError(code, words, file());
}

void SqliteConnection::rollBack() {
  if (!isGathering() || !rollBack_) return;
  sqlite3_step(rollBack_.get());
  sqlite3_reset(rollBack_.get());
}

void SqliteConnection::resetStatements() {
  for (sqlite3_stmt* one = sqlite3_next_stmt(handle_, nullptr); one; one = sqlite3_next_stmt(handle_, one))
    sqlite3_reset(one);
}

}  // namespace db
