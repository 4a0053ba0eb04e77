#include "failing_files.h"

#include <signal.h>
#include <sqlite3.h>

#include <cstring>
#include <stdexcept>

namespace test {
namespace {

/// The fault that is armed, and how many calls of its kind are left until it strikes. SQLite's functions are
/// plain ones, so they find it here.
struct Armed {
  bool on = false;
  bool struck = false;
  Fault fault;
  std::int64_t left = 0;
};
Armed armed;

/// True where this call is to fail.
bool strikes(Call call) {
  if (!armed.on || armed.fault.call != call) return false;
  if (armed.left > 1) {
    --armed.left;
    return false;
  }
  if (armed.fault.kills) raise(SIGKILL);
  const bool now = !armed.struck || armed.fault.onwards;
  armed.struck = true;
  return now;
}

/// A file of ours: SQLite's head, then the system's own file behind it.
struct File {
  sqlite3_file head;
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File& ours(sqlite3_file* file) { return *reinterpret_cast<File*>(file); }
sqlite3_file* real(sqlite3_file* file) { return ours(file).real(); }
const sqlite3_io_methods& methods(sqlite3_file* file) { return *real(file)->pMethods; }

int closeFile(sqlite3_file* file) { return methods(file).xClose(real(file)); }

/// A short read gives what came before the end, and zeros for the rest.
int readShort(sqlite3_file* file, void* bytes, int count, sqlite3_int64 at) {
  const int whole = methods(file).xRead(real(file), bytes, count, at);
  if (whole != SQLITE_OK) return whole;
  const int given = armed.fault.given * count / 100;
  std::memset(static_cast<char*>(bytes) + given, 0, static_cast<std::size_t>(count - given));
  return SQLITE_IOERR_SHORT_READ;
}

int readFile(sqlite3_file* file, void* bytes, int count, sqlite3_int64 at) {
  if (!strikes(Call::Read)) return methods(file).xRead(real(file), bytes, count, at);
  return armed.fault.code == SQLITE_IOERR_SHORT_READ ? readShort(file, bytes, count, at) : armed.fault.code;
}

/// Where a write fails, half of it may have reached the medium.
int writeFile(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at) {
  if (!strikes(Call::Write)) return methods(file).xWrite(real(file), bytes, count, at);
  methods(file).xWrite(real(file), bytes, count / 2, at);
  return armed.fault.code;
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
  return strikes(Call::Truncate) ? armed.fault.code : methods(file).xTruncate(real(file), size);
}

/// No power is cut in a test: what was written is there for everybody without the medium being waited for.
int syncFile(sqlite3_file*, int) { return strikes(Call::Sync) ? armed.fault.code : SQLITE_OK; }

int sizeOfFile(sqlite3_file* file, sqlite3_int64* size) {
  return strikes(Call::Size) ? armed.fault.code : methods(file).xFileSize(real(file), size);
}

int lockFile(sqlite3_file* file, int kind) {
  return strikes(Call::Lock) ? armed.fault.code : methods(file).xLock(real(file), kind);
}

int unlockFile(sqlite3_file* file, int kind) { return methods(file).xUnlock(real(file), kind); }
int isReserved(sqlite3_file* file, int* answer) {
  return methods(file).xCheckReservedLock(real(file), answer);
}
int controlFile(sqlite3_file* file, int what, void* argument) {
  return methods(file).xFileControl(real(file), what, argument);
}
int sectorOf(sqlite3_file* file) { return methods(file).xSectorSize(real(file)); }
int waysOf(sqlite3_file* file) { return methods(file).xDeviceCharacteristics(real(file)); }

sqlite3_io_methods fileMethods() {
  sqlite3_io_methods all{};
  all.iVersion = 1;
  all.xClose = closeFile;
  all.xRead = readFile;
  all.xWrite = writeFile;
  all.xTruncate = truncateFile;
  all.xSync = syncFile;
  all.xFileSize = sizeOfFile;
  all.xLock = lockFile;
  all.xUnlock = unlockFile;
  all.xCheckReservedLock = isReserved;
  all.xFileControl = controlFile;
  all.xSectorSize = sectorOf;
  all.xDeviceCharacteristics = waysOf;
  return all;
}

sqlite3_vfs* system() {
  static sqlite3_vfs* const own = sqlite3_vfs_find("unix");
  return own;
}

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given) {
  static const sqlite3_io_methods all = fileMethods();
  file->pMethods = nullptr;
  if (strikes(Call::Open)) return armed.fault.code;
  const int code = system()->xOpen(system(), name, real(file), flags, given);
  if (code == SQLITE_OK) file->pMethods = &all;
  return code;
}

/// Where it is the folder that cannot be written through to the medium, the file is gone all the same.
int deleteFile(sqlite3_vfs*, const char* name, int) {
  const bool fails = strikes(Call::Delete);
  if (fails && armed.fault.code != SQLITE_IOERR_DIR_FSYNC) return armed.fault.code;
  const int code = system()->xDelete(system(), name, 0);
  return fails && code == SQLITE_OK ? armed.fault.code : code;
}

int accessFile(sqlite3_vfs*, const char* name, int flags, int* answer) {
  return strikes(Call::Access) ? armed.fault.code : system()->xAccess(system(), name, flags, answer);
}

sqlite3_vfs* failing() {
  static sqlite3_vfs one = [] {
    sqlite3_vfs copy = *system();
    copy.zName = "failing";
    copy.pNext = nullptr;
    copy.szOsFile = static_cast<int>(sizeof(File)) + system()->szOsFile;
    copy.xOpen = openFile;
    copy.xDelete = deleteFile;
    copy.xAccess = accessFile;
    return copy;
  }();
  return &one;
}

sqlite3_mem_methods systemMemory;

void* allocate(int size) { return strikes(Call::Memory) ? nullptr : systemMemory.xMalloc(size); }
void* reallocate(void* block, int size) {
  return strikes(Call::Memory) ? nullptr : systemMemory.xRealloc(block, size);
}

/// Memory is handed to SQLite before its first use of any.
const bool memoryIsOurs = [] {
  sqlite3_config(SQLITE_CONFIG_GETMALLOC, &systemMemory);
  sqlite3_mem_methods own = systemMemory;
  own.xMalloc = allocate;
  own.xRealloc = reallocate;
  return sqlite3_config(SQLITE_CONFIG_MALLOC, &own) == SQLITE_OK;
}();

}  // namespace

FailingFiles::FailingFiles() {
  sqlite3_initialize();
  if (!memoryIsOurs || system() == nullptr) throw std::runtime_error("SQLite does not take our files");
  sqlite3_vfs_register(failing(), 1);
}

FailingFiles::~FailingFiles() {
  disarm();
  sqlite3_vfs_unregister(failing());
}

void FailingFiles::arm(const Fault& fault, std::int64_t k) { armed = {true, false, fault, k}; }

bool FailingFiles::disarm() {
  armed.on = false;
  return armed.struck;
}

}  // namespace test
