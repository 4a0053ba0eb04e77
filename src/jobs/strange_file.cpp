#include "jobs/strange_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "open/open.h"
#include "platform/files.h"
#include "text/padding.h"

namespace jobs {
namespace {

constexpr std::size_t looked = 4096;  // bytes of a file

// The format versions in an SQLite file's header (https://sqlite.org/fileformat.html).
constexpr std::size_t sqliteVersionAt = 18;
constexpr unsigned char newestSqlite = 2;

// The engine's version in an Access file's header: 0 is that of Access 97.
constexpr std::size_t accessVersionAt = 0x14;

constexpr const char* chooseAgain = "ジョブのファイル (.sqlite、.mdb、.accdb、.dsn) を選び直してください。";

std::string quoted(const std::string& path) { return "「" + path + "」"; }

std::optional<Trouble> notAFile(const std::string& path) {
  if (path.empty()) return Trouble{"ジョブのファイルが選ばれていません。", chooseAgain};
  if (path.find('\0') != std::string::npos)
    return Trouble{"ファイル名に使えない文字があります。", chooseAgain};
  if (platform::isFolder(path))
    return Trouble{quoted(path) + "はフォルダです。", "フォルダの中のジョブのファイルを選んでください。"};
  std::error_code ignored;
  if (!std::filesystem::exists(platform::nativePath(path), ignored))
    return Trouble{
        quoted(path) + "が見つかりません。",
        "移動や名前の変更がなかったか、ドライブやネットワークがつながっているかを確かめてください。"};
  if (!platform::isFile(path)) return Trouble{quoted(path) + "はファイルではありません。", chooseAgain};
  return std::nullopt;
}

bool isText(std::string_view bytes) {
  return std::none_of(bytes.begin(), bytes.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < ' ' && c != '\t' && c != '\r' && c != '\n' && c != '\f';
  });
}

bool begins(std::string_view bytes, std::string_view mark) { return bytes.starts_with(mark); }

unsigned char byteAt(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

/// A database whose version no engine here reads.
std::optional<Trouble> strangeVersion(const std::string& path, std::string_view bytes, db::FileKind kind) {
  const std::string newer = "それをつくったプログラムで、SQLite 3 の形式に書き出してください。";
  if (begins(bytes, "** This file contains an SQLite 2"))
    return Trouble{quoted(path) + "は SQLite 2 の形式です。このプログラムが読めるのは SQLite 3 です。",
                   newer};
  if (kind == db::FileKind::Sqlite &&
      (byteAt(bytes, sqliteVersionAt) > newestSqlite || byteAt(bytes, sqliteVersionAt + 1) > newestSqlite))
    return Trouble{quoted(path) + "は、このプログラムより新しい版の SQLite の形式です。", newer};
  if (kind == db::FileKind::Access && bytes.size() > accessVersionAt && byteAt(bytes, accessVersionAt) == 0)
    return Trouble{quoted(path) + "は Access 97 の形式です。今の Access のドライバーでは開けません。",
                   "Access 2003 までの版で開き、Access 2000 以降の形式に変換してください。"};
  return std::nullopt;
}

/// A file of another kind altogether.
Trouble otherKind(const std::string& path, std::string_view bytes) {
  if (begins(bytes, "PK\x03\x04") || begins(bytes, "\xD0\xCF\x11\xE0"))
    return {quoted(path) + "は Excel などの文書か圧縮ファイルで、ジョブではありません。",
            "観測成果の表なら、新しいジョブをつくり、「観測成果の取り込み」に貼り付けてください。"};
  if (isText(bytes))
    return {quoted(path) + "は文字のファイルで、ジョブではありません。",
            "観測成果の表 (CSV) なら、新しいジョブをつくり、「観測成果の取り込み」で取り込んでください。"};
  return {quoted(path) + "は壊れているか、ジョブではないファイルです。",
          "控えがあれば、それを開いてください。なければ、ジョブのファイルを選び直してください。"};
}

}  // namespace

std::string beginningOf(const std::string& path) {
  std::ifstream file(platform::nativePath(path), std::ios::binary);
  std::string bytes(looked, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(looked));
  bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
  return bytes;
}

std::optional<Trouble> strangeFile(const std::string& path) {
  if (auto trouble = notAFile(path)) return trouble;
  if (!std::ifstream(platform::nativePath(path), std::ios::binary))
    return Trouble{quoted(path) + "を読む権限がありません。",
                   "ファイルの権限か、ほかのプログラムが使っていないかを確かめてください。"};
  const std::string bytes = beginningOf(path);
  const db::FileKind kind = db::fileKind(path, bytes);
  if (bytes.empty())
    return Trouble{quoted(path) + "は空のファイルです。",
                   "書き込みの途中で失われたのかもしれません。控えがあれば、それを開いてください。"};
  if (auto trouble = strangeVersion(path, bytes, kind)) return trouble;
  return kind == db::FileKind::Unknown ? std::optional(otherKind(path, bytes)) : std::nullopt;
}

}  // namespace jobs
