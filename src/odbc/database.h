#pragma once

#include <memory>
#include <string_view>

#include "db/database.h"

namespace db {

/// Opens the Access file at `path` with the Access driver of this machine. Raises Error, naming the driver,
/// where there is none that fits.
std::unique_ptr<Database> openAccessFile(std::string_view path);

/// Opens the database that the file data source at `path`, whose text is `content`, tells of. Raises Error
/// where the text is no data source or its driver is missing.
std::unique_ptr<Database> openDataSource(std::string_view path, std::string_view content);

}  // namespace db
