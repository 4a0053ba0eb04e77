#include "report/formula.h"

#include <cmath>

#include "text/date.h"
#include "text/number.h"
#include "text/padding.h"

namespace report {
namespace {

using Op = Formula::Op;
using Piece = Formula::Piece;

constexpr std::string_view degreeSign = "°";

double minutesOf(std::string_view latitude) {
  const std::size_t sign = latitude.find(degreeSign);
  if (sign == std::string_view::npos) return text::readNumber(latitude) * 60;
  return text::readNumber(latitude.substr(0, sign)) * 60 +
         text::readNumber(latitude.substr(sign + degreeSign.size()));
}

double daysOf(std::string_view words) {
  const auto date = text::Date::parse(words);
  return date ? daysBetween(text::Date(1900, 1, 1), *date) : 0;
}

/// Reckons a formula piece by piece; what waits for an operator lies on the stack.
class Reckoner {
 public:
  explicit Reckoner(const Cells& cells) : cells_(cells) {}

  double value(const Formula& formula) {
    for (const Piece& piece : formula.pieces()) take(piece);
    return stack_.back();
  }

 private:
  void take(const Piece& piece) {
    if (piece.op <= Op::Minutes)
      stack_.push_back(leaf(piece));
    else if (piece.op <= Op::Divide)
      binary(piece.op);
    else
      stack_.back() = unary(piece, stack_.back());
  }

  double leaf(const Piece& piece) const {
    switch (piece.op) {
      case Op::Given:
        return text::readNumber(cells_.given(piece.cell));
      case Op::Reckoned:
        return cells_.reckoned(piece.cell);
      case Op::Sum:
      case Op::SumWhere:
        return sum(piece);
      case Op::Days:
        return daysOf(cells_.given(piece.cell));
      case Op::Minutes:
        return minutesOf(cells_.given(piece.cell));
      default:
        return piece.number;
    }
  }

  double sum(const Piece& piece) const {
    double total = 0;
    for (CellPlace at = piece.cell; at.row <= piece.last; ++at.row) {
      const CellPlace beside{at.sheet, at.row, static_cast<int>(piece.number)};
      if (piece.op == Op::Sum || !cells_.given(beside).empty()) total += text::readNumber(cells_.given(at));
    }
    return total;
  }

  void binary(Op op) {
    const double b = stack_.back();
    stack_.pop_back();
    double& a = stack_.back();
    if (op == Op::Add) a += b;
    if (op == Op::Subtract) a -= b;
    if (op == Op::Multiply) a *= b;
    if (op == Op::Divide) a = b == 0 ? 0 : a / b;
  }

  static double unary(const Piece& piece, double x) {
    switch (piece.op) {
      case Op::Round:
        return text::roundHalfAway(x, std::pow(10, piece.number));
      case Op::HalfUp:
        return text::roundHalfUp(x, std::pow(10, piece.number));
      case Op::Truncate:
        return std::trunc(x);
      case Op::Floor:
        return std::floor(x);
      case Op::Sine:
        return std::sin(text::FcDegToRad(x));
      default:
        return std::abs(x);
    }
  }

  const Cells& cells_;
  std::vector<double> stack_;
};

/// Decimals behind those of a rounded number. A half is one where its decimal of 15 digits reads so; what a
/// spreadsheet leaves behind these is noise of binary sums and products of lengths below 1,000,000.
constexpr int noiseDecimals = 9;

/// Writes a formula piece by piece in the same way.
class Writer {
 public:
  explicit Writer(const CellNames& names) : names_(names) {}

  std::string text(const Formula& formula) {
    for (const Piece& piece : formula.pieces()) take(piece);
    return stack_.back();
  }

 private:
  void take(const Piece& piece) {
    if (piece.op <= Op::Minutes)
      stack_.push_back(leaf(piece));
    else if (piece.op <= Op::Divide)
      binary(piece.op);
    else
      stack_.back() = unary(piece, stack_.back());
  }

  std::string leaf(const Piece& piece) const {
    switch (piece.op) {
      case Op::Given:
        return "N(" + names_.given(piece.cell) + ")";
      case Op::Reckoned:
        return names_.reckoned(piece.cell);
      case Op::Sum:
        return "SUM(" + range(piece, piece.cell.col) + ")";
      case Op::SumWhere:
        return "SUMIF(" + range(piece, static_cast<int>(piece.number)) + ",\"<>\"," +
               range(piece, piece.cell.col) + ")";
      case Op::Days:
        return date(names_.given(piece.cell));
      case Op::Minutes:
        return minutes(names_.given(piece.cell));
      default:
        return piece.number < 0 ? "(" + text::numberText(piece.number) + ")" : text::numberText(piece.number);
    }
  }

  std::string range(const Piece& piece, int col) const {
    const CellPlace first{piece.cell.sheet, piece.cell.row, col};
    const std::string last = names_.given({first.sheet, piece.last, col});
    const std::size_t sheet = last.find('!');
    return names_.given(first) + ":" + (sheet == std::string::npos ? last : last.substr(sheet + 1));
  }

  /// Spelt out, as spreadsheets read date texts by the customs of their country.
  static std::string date(const std::string& cell) {
    return "(DATE(LEFT(" + cell + ",4),MID(" + cell + ",6,2),MID(" + cell + ",9,2))-DATE(1900,1,1))";
  }

  static std::string minutes(const std::string& cell) {
    const std::string sign = "FIND(\"" + std::string(degreeSign) + "\"," + cell + ")";
    return "(LEFT(" + cell + "," + sign + "-1)*60+IFERROR(VALUE(MID(" + cell + "," + sign + "+1,20)),0))";
  }

  void binary(Op op) {
    const std::string b = stack_.back();
    stack_.pop_back();
    std::string& a = stack_.back();
    if (op == Op::Add) a = "(" + a + "+" + b + ")";
    if (op == Op::Subtract) a = "(" + a + "-" + b + ")";
    if (op == Op::Multiply) a = a + "*" + b;
    if (op == Op::Divide) a = divided(a, b);
  }

  static std::string divided(const std::string& a, const std::string& b) {
    const bool neverZero = text::isNumeric(b) && text::readNumber(b) != 0;
    if (neverZero) return a + "/" + b;
    const bool isProduct = b.find_first_of("*/") != std::string::npos;
    return "IF(" + b + "=0,0," + a + "/" + (isProduct ? "(" + b + ")" : b) + ")";
  }

  static std::string unary(const Piece& piece, const std::string& x) {
    const std::string decimals = text::numberText(piece.number);
    switch (piece.op) {
      case Op::Round:
        return "ROUND(ROUND(" + x + "," + text::numberText(piece.number + noiseDecimals) + ")," + decimals +
               ")";
      case Op::HalfUp:
        return "INT(ROUND((" + x + ")*10^" + decimals + ",6)+0.5)/10^" + decimals;
      case Op::Truncate:
        return "TRUNC(" + x + ")";
      case Op::Floor:
        return "INT(" + x + ")";
      case Op::Sine:
        return "SIN(RADIANS(" + x + "))";
      default:
        return "ABS(" + x + ")";
    }
  }

  const CellNames& names_;
  std::vector<std::string> stack_;
};

}  // namespace

Formula Formula::with(const Piece& piece) const {
  Formula result = *this;
  result.pieces_.push_back(piece);
  return result;
}

Formula Formula::with(const Formula& other, Op op) const {
  Formula result = *this;
  result.pieces_.reserve(pieces_.size() + other.pieces_.size() + 1);
  result.pieces_.insert(result.pieces_.end(), other.pieces_.begin(), other.pieces_.end());
  result.pieces_.push_back({op, 0, {}, 0});
  return result;
}

void Formula::shift(const std::vector<int>& rows) {
  for (Piece& piece : pieces_) {
    const auto sheet = static_cast<std::size_t>(piece.cell.sheet);
    if (sheet >= rows.size()) continue;
    piece.cell.row += rows[sheet];
    piece.last += rows[sheet];
  }
}

double valueOf(const Formula& formula, const Cells& cells) { return Reckoner(cells).value(formula); }

std::string spreadsheetText(const Formula& formula, const CellNames& names) {
  return Writer(names).text(formula);
}

}  // namespace report
