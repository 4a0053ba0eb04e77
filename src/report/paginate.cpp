#include "report/paginate.h"

#include <algorithm>
#include <array>

#include "report/page_maker.h"
#include "report/table_layout.h"

namespace report {
namespace {

constexpr double pointSize = 25.4 * 10 / 72;  // a typographic point in 0.1 mm
constexpr std::array<double, 2> uprightSizes = {9 * pointSize, 8 * pointSize};
constexpr std::array<double, 4> lyingSizes = {9 * pointSize, 8 * pointSize, 7 * pointSize, 6 * pointSize};
constexpr double gap = 40;  // between the things on a page
constexpr double captionSize = 34;
constexpr double captionHeight = 60;
const Pen thin{1, {90, 90, 90}, Dash::Solid};
const Pen thick{5, black, Dash::Solid};

using Lines = std::vector<std::vector<std::string>>;

/// How high a row is, in lines.
std::size_t heightOf(const Lines& lines) {
  std::size_t most = 1;
  for (const auto& cell : lines) most = std::max(most, cell.size());
  return most;
}

/// Puts a table on pages.
class TableRun {
 public:
  /// `caption`: the table's name stands above it.
  TableRun(PageMaker& maker, const Table& table, const TableLayout& layout, bool caption)
      : maker_(maker), table_(table), layout_(layout), caption_(caption) {}

  void run() {
    begin();
    for (std::size_t first = 0; first < table_.rows.size();) {
      std::size_t last = first;
      while (last + 1 < table_.rows.size() && table_.rows[last].withNext) ++last;
      group(first, last);
      first = last + 1;
    }
    end();
  }

 private:
  void begin() {
    const double caption = caption_ ? captionHeight : 0;
    if (maker_.room() < caption + layout_.headHeight() + 4 * layout_.rowHeight(1)) maker_.beginPage();
    if (caption > 0) {
      const Point at = maker_.at();
      maker_.page().shapes.emplace_back(Words{{at.x, at.y + captionSize}, table_.name, captionSize});
      maker_.down(caption);
    }
    head();
  }

  void head() {
    top_ = maker_.at();
    layout_.drawHead(maker_.page(), top_);
    maker_.down(layout_.headHeight());
  }

  /// Closes the table on this page.
  void end() {
    layout_.drawSides(maker_.page(), top_, maker_.at().y - top_.y);
    across(Pen{2.5, black, Dash::Solid});
  }

  void nextPage() {
    end();
    maker_.beginPage();
    head();
  }

  void across(const Pen& pen) {
    const Point at = maker_.at();
    rule(maker_.page(), at, {at.x + layout_.width(), at.y}, pen);
  }

  /// Rows that stay together.
  void group(std::size_t first, std::size_t last) {
    std::vector<Lines> rows;
    double height = 0;
    for (std::size_t i = first; i <= last; ++i) {
      rows.push_back(layout_.lines(table_.rows[i]));
      if (!table_.rows[i].blank()) height += layout_.rowHeight(heightOf(rows.back()));
    }
    if (height == 0) return;
    const bool together = height <= maker_.freshRoom() - layout_.headHeight();
    if (together && height > maker_.room()) nextPage();
    for (std::size_t i = first; i <= last; ++i) row(table_.rows[i], rows[i - first]);
    across(table_.rows[last].ruleBelow ? thick : thin);
  }

  void row(const Row& row, const Lines& lines) {
    if (row.blank()) return;
    const std::size_t all = heightOf(lines);
    for (std::size_t first = 0; first < all;) {
      if (layout_.rowHeight(std::min(all - first, mostLines())) > maker_.room()) nextPage();
      const std::size_t last = std::min(all, first + mostLines());
      layout_.drawRow(maker_.page(), maker_.at(), lines, first, last);
      maker_.down(layout_.rowHeight(last - first));
      first = last;
    }
  }

  /// How many lines of a row a fresh page holds.
  std::size_t mostLines() const {
    const double room = maker_.freshRoom() - layout_.headHeight() - layout_.rowHeight(0);
    return std::max<std::size_t>(1, static_cast<std::size_t>(room / layout_.lineHeight()));
  }

  PageMaker& maker_;
  const Table& table_;
  const TableLayout& layout_;
  bool caption_;
  Point top_;
};

/// Puts the parts of a document on pages.
class Run {
 public:
  Run(const Document& document, const Paper& paper, const Measure& measure)
      : paper_(paper), measure_(measure), maker_(paper, measure) {
    maker_.beginDocument(document);
  }

  std::vector<TableLayout> layoutsOf(const Part& part) const {
    std::vector<TableLayout> layouts;
    for (const Item& item : part.items)
      if (const auto* table = std::get_if<Table>(&item)) layouts.emplace_back(*table, measure_);
    return layouts;
  }

  bool lying(const Part& part) const {
    std::vector<TableLayout> layouts = layoutsOf(part);
    return lying(layouts);
  }

  void part(const Part& part) {
    std::vector<TableLayout> layouts = layoutsOf(part);
    maker_.beginPart(part, lying(layouts));
    auto layout = layouts.begin();
    for (const Item& item : part.items) {
      if (const auto* table = std::get_if<Table>(&item)) put(*table, *layout++, part.title);
      if (const auto* note = std::get_if<Note>(&item)) put(*note);
      if (const auto* figure = std::get_if<Figure>(&item)) put(*figure);
    }
  }

  std::vector<Drawing> finished() { return maker_.finished(); }

 private:
  static bool fit(std::vector<TableLayout>& layouts, double size, double width, bool squeeze) {
    return std::all_of(layouts.begin(), layouts.end(),
                       [&](TableLayout& layout) { return layout.fit(size, width, squeeze); });
  }

  /// Lays the tables of a part out; true where they need pages that lie.
  bool lying(std::vector<TableLayout>& layouts) const {
    if (!paper_.turned)
      for (const double size : uprightSizes)
        if (fit(layouts, size, maker_.width(false), false)) return false;
    for (const double size : lyingSizes)
      if (fit(layouts, size, maker_.width(true), false)) return true;
    fit(layouts, lyingSizes.back(), maker_.width(true), true);
    return true;
  }

  void put(const Table& table, const TableLayout& layout, const std::string& title) {
    if (table.rows.empty() && !table.ofGrid()) return;
    TableRun(maker_, table, layout, !table.ofGrid() && table.name != title).run();
    maker_.down(gap);
  }

  void put(const Note& note) {
    const double size = uprightSizes.front();
    const double width = maker_.page().width - maker_.at().x * 2;
    for (const std::string& line : wrapped(note.text, width / size, measure_)) {
      if (maker_.room() < size * 1.4) maker_.beginPage();
      const Point at = maker_.at();
      maker_.page().shapes.emplace_back(Words{{at.x, at.y + size}, line, size});
      maker_.down(size * 1.4);
    }
    maker_.down(gap / 2);
  }

  /// A page of its own, in the largest size that fits.
  void put(const Figure& figure) {
    maker_.beginPage();
    const Point at = maker_.at();
    maker_.page().shapes.emplace_back(Words{{at.x, at.y + captionSize}, figure.title, captionSize});
    maker_.down(captionHeight);
    const double width = maker_.page().width - at.x - 150;
    const double scale = std::min(width / figure.drawing.width, maker_.room() / figure.drawing.height);
    place(maker_.page(), figure.drawing, maker_.at(), scale);
  }

  Paper paper_;
  const Measure& measure_;
  PageMaker maker_;
};

}  // namespace

bool needsLyingPages(const Document& document, const Paper& paper, const Measure& measure) {
  return !document.parts.empty() && Run(document, paper, measure).lying(document.parts.front());
}

std::vector<Drawing> paginate(const Document& document, const Paper& paper, const Measure& measure,
                              const Progress& progress) {
  Run run(document, paper, measure);
  for (std::size_t i = 0; i < document.parts.size(); ++i) {
    tell(progress, i, document.parts.size());
    run.part(document.parts[i]);
  }
  return run.finished();
}

}  // namespace report
