#include "platform/encoding.h"

#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>

#include <array>
#include <cstdint>
#include <memory>
#endif

namespace platform {
namespace {

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

bool isLead(unsigned char byte) {
  return (byte >= 0x81U && byte <= 0x9FU) || (byte >= 0xE0U && byte <= 0xFCU);
}

bool isTrail(unsigned char byte) { return byte >= 0x40U && byte <= 0xFCU && byte != 0x7FU; }

bool isSingle(unsigned char byte) { return byte < 0x80U || (byte >= 0xA1U && byte <= 0xDFU); }

/// True where the bytes have the form of CP932. Systems differ in what they make of the bytes that are left
/// open (0x80, 0xA0, 0xFD to 0xFF); here those are no characters.
bool hasForm(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (isSingle(byte)) continue;
    if (!isLead(byte) || ++at == bytes.size() || !isTrail(static_cast<unsigned char>(bytes[at])))
      return false;
  }
  return true;
}

#ifdef _WIN32

constexpr UINT cp932 = 932;

std::optional<std::string> converted(std::string_view text, UINT from, UINT to) {
  const int length = static_cast<int>(text.size());
  const int wideLength = MultiByteToWideChar(from, MB_ERR_INVALID_CHARS, text.data(), length, nullptr, 0);
  if (wideLength <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
  MultiByteToWideChar(from, MB_ERR_INVALID_CHARS, text.data(), length, wide.data(), wideLength);
  const DWORD flags = to == CP_UTF8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  BOOL replaced = FALSE;
  BOOL* const told = to == CP_UTF8 ? nullptr : &replaced;
  const int size = WideCharToMultiByte(to, flags, wide.data(), wideLength, nullptr, 0, nullptr, told);
  if (size <= 0 || replaced != FALSE) return std::nullopt;
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(to, flags, wide.data(), wideLength, result.data(), size, nullptr, told);
  return result;
}

std::optional<std::string> decoded(std::string_view bytes) { return converted(bytes, cp932, CP_UTF8); }

std::optional<std::string> encoded(std::string_view text) { return converted(text, CP_UTF8, cp932); }

#else

struct CloseConverter {
  void operator()(void* converter) const { iconv_close(converter); }
};

/// A converter of the system's; null where the system has none. Kept: opening one loads its tables.
class Converter {
 public:
  Converter(const char* to, const char* from) {
    const iconv_t opened = iconv_open(to, from);
    if (!isFailure(opened)) handle_.reset(opened);
  }

  std::optional<std::string> operator()(std::string_view text) {
    if (!handle_) return std::nullopt;
    iconv(handle_.get(), nullptr, nullptr, nullptr, nullptr);
    std::string input(text);
    char* from = input.data();
    std::size_t left = input.size();
    std::string result;
    while (left > 0) {
      std::array<char, 4096> block;
      char* to = block.data();
      std::size_t room = block.size();
      const std::size_t before = left;
      iconv(handle_.get(), &from, &left, &to, &room);
      result.append(block.data(), block.size() - room);
      if (left == before) return std::nullopt;  // not one character further: this one cannot be converted
    }
    return result;
  }

 private:
  static bool isFailure(iconv_t handle) { return reinterpret_cast<std::intptr_t>(handle) == -1; }

  std::unique_ptr<void, CloseConverter> handle_;
};

std::optional<std::string> decoded(std::string_view bytes) {
  thread_local Converter converter("UTF-8", "CP932");
  return converter(bytes);
}

std::optional<std::string> encoded(std::string_view text) {
  thread_local Converter converter("CP932", "UTF-8");
  return converter(text);
}

#endif

}  // namespace

std::optional<std::string> fromCp932(std::string_view bytes) {
  if (isAscii(bytes)) return std::string(bytes);
  return hasForm(bytes) ? decoded(bytes) : std::nullopt;
}

std::optional<std::string> toCp932(std::string_view text) {
  if (isAscii(text)) return std::string(text);
  std::optional<std::string> bytes = encoded(text);
  // Systems write look-alikes for characters that the encoding lacks.
  if (bytes && fromCp932(*bytes) != text) return std::nullopt;
  return bytes;
}

}  // namespace platform
