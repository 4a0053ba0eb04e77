#pragma once

#include <string>
#include <vector>

#include "report/document.h"
#include "report/measure.h"
#include "report/paginate.h"

namespace report {

/// The room that a page leaves around what stands on it, 0.1 mm; the left one takes the punch.
struct Margins {
  double left = 200;
  double right = 150;
  double top = 150;
  double bottom = 160;
};

/// Puts things on pages from the top down and begins a new page where one is full.
class PageMaker {
 public:
  PageMaker(const Paper& paper, const Measure& measure) : paper_(paper), measure_(measure) {}

  /// The width and the height that a page has for what stands on it, lying or upright.
  double width(bool lying) const;
  double height(bool lying) const;

  /// The title of the document in front, and the fields of all its parts.
  void beginDocument(const Document& document) { document_ = &document; }
  /// Begins a part on a page of its own, with its whole heading.
  void beginPart(const Part& part, bool lying);
  /// Begins a page that goes on with the part: its heading in one line.
  void beginPage();

  /// The page that is being filled, the place on it where the next thing goes, the room below that, and the
  /// room that a fresh page of this part has.
  Drawing& page() { return pages_.back(); }
  Point at() const { return {margins_.left, y_}; }
  double room() const;
  double freshRoom() const;
  /// Goes down by `height`.
  void down(double height) { y_ += height; }

  /// The pages, each with its number.
  std::vector<Drawing> finished();
  std::size_t count() const { return pages_.size(); }

 private:
  void addPage();
  void boxes();
  void title(const std::string& text);
  void fields(const std::vector<Field>& fields);
  double indentOf(const std::vector<Field>& fields, std::size_t first) const;
  double longestText(const std::vector<Field>& fields, std::size_t first) const;
  void field(const Field& field, double x, double width, double indent, double& lowest);
  std::string running() const;

  Paper paper_;
  const Measure& measure_;
  Margins margins_;
  const Document* document_ = nullptr;
  const Part* part_ = nullptr;
  bool lying_ = false;
  std::vector<Drawing> pages_;
  double y_ = 0;
};

}  // namespace report
