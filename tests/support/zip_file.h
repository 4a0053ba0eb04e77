#pragma once

#include <zlib.h>

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace test {

/// The files in a ZIP archive, by their names.
class ZipFile {
 public:
  /// `bytes`: the whole archive.
  explicit ZipFile(std::string_view bytes) : bytes_(bytes) {
    const std::size_t end = bytes.rfind("PK\x05\x06");
    if (end == std::string_view::npos) throw std::runtime_error("no ZIP archive");
    std::size_t at = number(end + 16, 4);
    for (std::size_t left = number(end + 10, 2); left > 0; --left) at = take(at);
  }

  /// The content of a file; "" where there is none of that name.
  std::string file(const std::string& name) const {
    const auto found = files_.find(name);
    return found == files_.end() ? std::string() : found->second;
  }

 private:
  std::size_t number(std::size_t at, std::size_t size) const {
    std::size_t value = 0;
    for (std::size_t i = size; i > 0; --i)
      value = value << 8U | static_cast<unsigned char>(bytes_.at(at + i - 1));
    return value;
  }

  /// Takes the file of a directory entry; returns where the next entry stands.
  std::size_t take(std::size_t entry) {
    const std::size_t nameLength = number(entry + 28, 2);
    const std::size_t local = number(entry + 42, 4);
    const std::size_t start = local + 30 + number(local + 26, 2) + number(local + 28, 2);
    const std::string_view packed = bytes_.substr(start, number(entry + 20, 4));
    files_[std::string(bytes_.substr(entry + 46, nameLength))] =
        number(entry + 10, 2) == 0 ? std::string(packed) : inflated(packed, number(entry + 24, 4));
    return entry + 46 + nameLength + number(entry + 30, 2) + number(entry + 32, 2);
  }

  static std::string inflated(std::string_view packed, std::size_t size) {
    std::string content(size, '\0');
    std::string input(packed);
    z_stream stream{};
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(content.data());
    stream.avail_out = static_cast<uInt>(content.size());
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) throw std::runtime_error("zlib");
    const int result = inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    if (result != Z_STREAM_END) throw std::runtime_error("damaged ZIP archive");
    return content;
  }

  std::string_view bytes_;
  std::map<std::string, std::string> files_;
};

}  // namespace test
