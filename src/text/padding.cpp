#include "text/padding.h"

#include <algorithm>

namespace text {
namespace {

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

/// How many bytes the lead byte announces; 1 for a byte that announces nothing valid.
std::size_t announced(unsigned char lead) {
  if (lead >= 0xC2U && lead <= 0xDFU) return 2;
  if (lead >= 0xE0U && lead <= 0xEFU) return 3;
  if (lead >= 0xF0U && lead <= 0xF4U) return 4;
  return 1;
}

bool isSurrogateOrOverlong(unsigned char lead, unsigned char second) {
  switch (lead) {
    case 0xE0U:
      return second < 0xA0U;
    case 0xEDU:
      return second > 0x9FU;
    case 0xF0U:
      return second < 0x90U;
    case 0xF4U:
      return second > 0x8FU;
    default:
      return false;
  }
}

/// The number of bytes of the character at `at`.
std::size_t width(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t bytes = announced(lead);
  if (bytes == 1 || at + bytes > text.size()) return 1;
  for (std::size_t i = 1; i < bytes; ++i)
    if (!isContinuation(text[at + i])) return 1;
  return isSurrogateOrOverlong(lead, static_cast<unsigned char>(text[at + 1])) ? 1 : bytes;
}

/// The byte at which character `count` (from 0) begins, or the end.
std::size_t byteOf(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  while (count > 0 && at < text.size()) {
    at += width(text, at);
    --count;
  }
  return at;
}

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += width(text, at)) ++count;
  return count;
}

std::string_view mid(std::string_view text, std::size_t start, std::size_t count) {
  text.remove_prefix(byteOf(text, start == 0 ? 0 : start - 1));
  return text.substr(0, byteOf(text, count));
}

std::string_view mid(std::string_view text, std::size_t start) {
  return text.substr(byteOf(text, start == 0 ? 0 : start - 1));
}

std::string_view left(std::string_view text, std::size_t count) {
  return text.substr(0, byteOf(text, count));
}

std::string_view right(std::string_view text, std::size_t count) {
  const std::size_t all = length(text);
  return count >= all ? text : text.substr(byteOf(text, all - count));
}

std::string padded(std::string_view text, std::size_t wanted) {
  std::string result(left(text, wanted));
  result.append(wanted - length(result), ' ');
  return result;
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  return trimmedRight(text);
}

std::string_view trimmedRight(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

char32_t nextCharacter(std::string_view text, std::size_t& at) {
  const std::size_t bytes = width(text, at);
  const auto lead = static_cast<unsigned char>(text[at]);
  char32_t character = bytes == 1 ? (lead < 0x80U ? lead : 0xFFFDU) : lead & (0xFFU >> (bytes + 1));
  for (std::size_t i = 1; i < bytes; ++i)
    character = (character << 6U) | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
  at += bytes;
  return character;
}

void appendCharacter(std::string& text, char32_t character) {
  const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (character < 0x80U) {
    put(character);
  } else if (character < 0x800U) {
    put(0xC0U | (character >> 6U));
    put(0x80U | (character & 0x3FU));
  } else if (character < 0x10000U) {
    put(0xE0U | (character >> 12U));
    put(0x80U | ((character >> 6U) & 0x3FU));
    put(0x80U | (character & 0x3FU));
  } else {
    put(0xF0U | (character >> 18U));
    put(0x80U | ((character >> 12U) & 0x3FU));
    put(0x80U | ((character >> 6U) & 0x3FU));
    put(0x80U | (character & 0x3FU));
  }
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace text
