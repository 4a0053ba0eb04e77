#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <string>
#include <vector>

namespace {

/// A widget of a form, as its file has it.
struct Written {
  std::string name;
  QString kind;
  QString parentKind;    ///< kind of the widget it stands on, "" for the root
  bool laidOut = false;  ///< stands in a layout
  bool placed = false;   ///< has a geometry of its own
};

/// Reads the widgets of a form file, the root first.
class FormReader {
 public:
  explicit FormReader(const QString& path) : file_(path) {
    if (!file_.open(QIODevice::ReadOnly)) throw std::runtime_error("no form " + path.toStdString());
    xml_.setDevice(&file_);
    while (!xml_.atEnd()) step();
  }

  std::vector<Written> widgets;

 private:
  void step() {
    const auto token = xml_.readNext();
    if (token == QXmlStreamReader::StartElement) begin(xml_.name().toString());
    if (token == QXmlStreamReader::EndElement) elements_.pop_back();
    if (token == QXmlStreamReader::EndElement && xml_.name() == QLatin1String("widget")) open_.pop_back();
  }

  void begin(const QString& element) {
    if (element == QLatin1String("widget")) {
      const auto attributes = xml_.attributes();
      const QString parent = open_.empty() ? QString() : widgets[open_.back()].kind;
      widgets.push_back({attributes.value("name").toString().toStdString(),
                         attributes.value("class").toString(), parent,
                         !elements_.empty() && elements_.back() == QLatin1String("item"), false});
      open_.push_back(widgets.size() - 1);
    }
    if (element == QLatin1String("property") && xml_.attributes().value("name") == QLatin1String("geometry"))
      widgets[open_.back()].placed = true;
    elements_.push_back(element);
  }

  QFile file_;
  QXmlStreamReader xml_;
  std::vector<QString> elements_;
  std::vector<std::size_t> open_;
};

/// True where the toolkit itself gives a widget its place: client, bars and menus of a window, pages of tabs.
bool hasItsOwnPlace(const Written& widget) {
  return widget.parentKind == QLatin1String("QMainWindow") ||
         widget.parentKind == QLatin1String("QTabWidget") || widget.parentKind == QLatin1String("QMenuBar") ||
         widget.parentKind == QLatin1String("QMenu");
}

std::vector<QString> formFiles() {
  const QDir forms(QStringLiteral(SEIKAHYOU_FORMS));
  std::vector<QString> paths;
  for (const QString& name : forms.entryList({QStringLiteral("*.ui")})) paths.push_back(forms.filePath(name));
  return paths;
}

/// A form opens in the designer as it is seen in the program: nothing lies in a pile in the corner.
TEST(FormFiles, GiveEveryWidgetALayoutOrAPlace) {
  ASSERT_GE(formFiles().size(), 7U);
  for (const QString& path : formFiles()) {
    const auto widgets = FormReader(path).widgets;
    SCOPED_TRACE(path.toStdString());
    EXPECT_TRUE(widgets.front().placed) << "the root has no size";
    for (std::size_t i = 1; i < widgets.size(); ++i)
      EXPECT_TRUE(widgets[i].laidOut || widgets[i].placed || hasItsOwnPlace(widgets[i])) << widgets[i].name;
  }
}

/// The page on which a route is chosen exists once.
TEST(FormFiles, ShareTheSelectionPage) {
  int pages = 0;
  std::vector<std::string> owners;
  for (const QString& path : formFiles())
    for (const Written& widget : FormReader(path).widgets) {
      if (widget.kind == QLatin1String("qt::SelectionPage")) ++pages;
      if (widget.name == "cmbRosenBango1") owners.push_back(QFileInfo(path).fileName().toStdString());
    }
  EXPECT_EQ(pages, 4);
  EXPECT_EQ(owners, std::vector<std::string>{"SelectionPage.ui"});
}

}  // namespace
