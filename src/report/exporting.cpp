#include "report/exporting.h"

#include <algorithm>
#include <array>
#include <variant>

#include "platform/files.h"
#include "platform/write_obstacle.h"
#include "report/csv_writer.h"
#include "report/svg_writer.h"
#include "report/xlsx_writer.h"
#include "text/padding.h"

namespace report {
namespace {

constexpr std::array<std::string_view, 5> suffixes = {".pdf", ".svg", ".png", ".xlsx", ".csv"};
constexpr std::size_t drawingSuffixes = 3;
constexpr double pageGap = 40;
constexpr double margin = 150;
constexpr double titleSize = 45;
constexpr double titleHeight = 90;
constexpr double paperLong = 2970;
constexpr double paperShort = 2100;

std::string_view suffixOf(std::string_view path) {
  for (const std::string_view suffix : suffixes)
    if (path.size() > suffix.size() &&
        text::equalIgnoringCase(path.substr(path.size() - suffix.size()), suffix))
      return suffix;
  return {};
}

std::string nameOf(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
  throw text::RuntimeError(text::ErrorCode::PathNotFound, "ファイル「" + path + "」に書き込めません。" + why);
}

/// The least that a medium must have free for a file to be written; libraries do not tell how much they
/// wanted.
constexpr std::uintmax_t leastRoom = 1U << 20U;

/// Lets `write` write the new file beside the old one, and puts it in its place.
template <class Write>
void replace(const std::string& path, const Write& write) {
  platform::GrowingFile growing(path);
  try {
    platform::writeFile(growing.path(), {});
    write(growing.path());
    growing.finish();
  } catch (const Cancelled&) {
    throw;
  } catch (const text::RuntimeError& error) {
    if (error.code() != text::ErrorCode::PathNotFound) throw;
    refuse(path, platform::wordsFor(platform::writeObstacle(path, leastRoom)));
  }
}

std::unique_ptr<PageWriter> writerOf(const Exporting& how) {
  if (!how.pageWriter)
    throw text::RuntimeError(text::ErrorCode::FileNotFound,
                             "このプログラムは画面なしで作られているため、PDF と PNG は出力できません。");
  return how.pageWriter();
}

/// Pages below each other on one sheet.
Drawing stacked(const std::vector<Drawing>& pages) {
  Drawing sheet;
  for (const Drawing& page : pages) {
    const double top = sheet.height == 0 ? 0 : sheet.height + pageGap;
    place(sheet, page, {0, top});
    sheet.width = std::max(sheet.width, page.width);
    sheet.height = top + page.height;
  }
  return sheet;
}

Exported exportPages(const std::vector<Drawing>& pages, const std::string& title, const std::string& path,
                     const Exporting& how, PageWriter* writer) {
  const std::string_view suffix = suffixOf(path);
  if (suffix == ".svg") {
    replace(path, [&](const std::string& file) { platform::writeFile(file, svgOf(stacked(pages), title)); });
    return {nameOf(path), "", 0};
  }
  if (suffix == ".png") {
    replace(path, [&](const std::string& file) { writer->writePng(stacked(pages), file); });
    return {nameOf(path), "", 0};
  }
  replace(path, [&](const std::string& file) { writer->writePdf(pages, title, file, how.progress); });
  return {nameOf(path), "pages", pages.size()};
}

std::size_t gridRows(const Document& document) {
  std::size_t rows = 0;
  for (const Part& part : document.parts)
    for (const Item& item : part.items)
      if (const auto* table = std::get_if<Table>(&item); table != nullptr && table->ofGrid())
        rows += table->rows.size();
  return rows;
}

}  // namespace

bool canExportDocument(std::string_view path) { return !suffixOf(path).empty(); }

bool canExportDrawing(std::string_view path) {
  const auto* const end = suffixes.begin() + drawingSuffixes;
  return std::find(suffixes.begin(), end, suffixOf(path)) != end;
}

Exported exportDocument(const Document& document, const std::string& path, const Exporting& how) {
  const std::string_view suffix = suffixOf(path);
  if (suffix == ".csv") {
    const std::string csv = csvOf(document, how.encoding);
    replace(path, [&](const std::string& file) { platform::writeFile(file, csv); });
    return {nameOf(path), "rows", gridRows(document)};
  }
  if (suffix == ".xlsx") {
    replace(path, [&](const std::string& file) { writeXlsx(document, file, how.progress); });
    return {nameOf(path), "rows", gridRows(document)};
  }
  const auto writer = suffix == ".svg" ? nullptr : writerOf(how);
  const Measure measure = writer ? writer->measure() : fixedPitch;
  return exportPages(paginate(document, how.paper, measure, how.progress), document.title, path, how,
                     writer.get());
}

Drawing pageOf(const Figure& figure) {
  const Drawing& drawing = figure.drawing;
  const double room = paperShort - 2 * margin - titleHeight;
  const double scale = drawing.height > room ? room / drawing.height : 1;
  Drawing page{std::max(paperLong, drawing.width * scale + 2 * margin), paperShort, {}};
  Words title{{page.width / 2, margin + titleSize}, figure.title, titleSize, Anchor::Middle};
  title.bold = true;
  page.shapes.emplace_back(std::move(title));
  place(page, drawing, {(page.width - drawing.width * scale) / 2, margin + titleHeight}, scale);
  return page;
}

Exported exportDrawing(const Figure& figure, const std::string& path, const Exporting& how) {
  const auto writer = suffixOf(path) == ".svg" ? nullptr : writerOf(how);
  return exportPages({pageOf(figure)}, figure.title, path, how, writer.get());
}

}  // namespace report
