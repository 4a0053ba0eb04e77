#include "job/grade.h"

#include "text/error.h"

namespace job {
namespace {

// Reading a pattern costs more than using it; each is read once.
const text::Pattern& fourDecimals() {
  static const text::Pattern pattern("###0.0000");
  return pattern;
}

const text::Pattern& threeDecimals() {
  static const text::Pattern pattern("###0.000");
  return pattern;
}

const text::Pattern& oneDecimal() {
  static const text::Pattern pattern("##0.0");
  return pattern;
}

const text::Pattern& whole() {
  static const text::Pattern pattern("###0");
  return pattern;
}

const text::Pattern& shortWhole() {
  static const text::Pattern pattern("##0");
  return pattern;
}

const text::Pattern& hundredths() {
  static const text::Pattern pattern("#0.00");
  return pattern;
}

const text::Pattern& wideTenths() {
  static const text::Pattern pattern("###0.0");
  return pattern;
}

const text::Pattern& tenths() {
  static const text::Pattern pattern("#0.0");
  return pattern;
}

}  // namespace

const text::Pattern& Grade::heights() const { return isFirst() ? fourDecimals() : threeDecimals(); }

NumberFormats::NumberFormats(Grade grade) {
  slots_.fill(&grade.heights());
  slots_[3] = grade.isFirst() ? &oneDecimal() : &whole();
  slots_[4] = &shortWhole();
  slots_[9] = &hundredths();
  slots_[10] = &wideTenths();
  slots_[11] = &tenths();
}

const text::Pattern& NumberFormats::operator[](int slot) const {
  if (slot < 1 || slot > 13) throw text::RuntimeError(text::ErrorCode::Subscript);
  return *slots_[static_cast<std::size_t>(slot) - 1];
}

}  // namespace job
