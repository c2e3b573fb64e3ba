#include <QAction>
#include <QComboBox>
#include <QPaintEngine>
#include <QPainter>
#include <QPrinterInfo>
#include <QScrollArea>
#include <QSpinBox>
#include <QTimer>
#include <filesystem>
#include <set>

#include "gui_test.h"
#include "platform/qt/report_pages.h"
#include "platform/qt/report_preview.h"
#include "store/delivered.h"

namespace nautrel {
namespace {

struct Written {
  QString text;
  QRectF place;  // twips of the sheet
};

/// A picture in twips that notes the texts painted on it, and where.
class Recorder : public QImage {
 public:
  Recorder() : QImage(1, 1, Format_RGB32) {
    setDotsPerMeterX(kTwipsPerMeter);
    setDotsPerMeterY(kTwipsPerMeter);
  }
  QPaintEngine* paintEngine() const override { return &engine_; }

  std::vector<Written> texts;

 private:
  static constexpr int kTwipsPerMeter = 56693;

  class Engine : public QPaintEngine {
   public:
    explicit Engine(std::vector<Written>& texts) : QPaintEngine(AllFeatures), texts_(texts) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawRects(const QRectF*, int) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
      const auto place = painter()->deviceTransform().map(at);
      texts_.push_back(
          {item.text(),
           {place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent()}});
    }

   private:
    std::vector<Written>& texts_;
  };
  mutable Engine engine_{texts};
};

std::vector<Written> textsOf(const ReportPages& pages, int page) {
  Recorder recorder;
  QPainter painter(&recorder);
  pages.paint(painter, page);
  painter.end();
  return recorder.texts;
}

/// Where a text stands on the first page.
QRectF placeOf(const ReportPages& pages, const QString& text) {
  for (const auto& written : textsOf(pages, 0))
    if (written.text == text) return written.place;
  ADD_FAILURE() << fromQt(text) << " is not on the page";
  return {};
}

QPageLayout a4() {
  return {
      QPageSize(QPageSize::A4), QPageLayout::Portrait, {15, 15, 15, 15}, QPageLayout::Millimeter};
}

ListReport numbered(int rows, double width = 30) {
  using Alignment = ListLayout::Alignment;
  ListReport report;
  report.title = "Title";
  report.subtitle = "Range";
  report.footer = [](int page, int pages) {
    return "left | " + std::to_string(page) + " of " + std::to_string(pages);
  };
  report.layout.columns = {{"Left", width, Alignment::Left},
                           {"Middle", width, Alignment::Center},
                           {"Right", width, Alignment::Right}};
  for (int row = 1; row <= rows; ++row)
    for (const char* column : {"a", "b", "c"}) report.cells.push_back(column + std::to_string(row));
  return report;
}

TEST(ReportOnPaper, EveryPageHasItsHeadAndEveryRowItsPlace) {
  for (const int count : {0, 200}) {
    const auto pages = layOut(numbered(count), a4());
    EXPECT_TRUE(count == 0 ? pages->count() == 1 : pages->count() > 2);
    int row = 0;
    for (int page = 0; page < pages->count(); ++page) {
      QStringList words;
      for (const auto& [text, place] : textsOf(*pages, page)) {
        EXPECT_TRUE(pages->body().adjusted(-1, -1, 1, 1).contains(place)) << fromQt(text);
        if (text.startsWith('a')) {
          EXPECT_EQ(text, QString("a%1").arg(++row));
        }
        words << text;
      }
      for (const auto& word : {QString("Title"), QString("Range"), QString("Left"),
                               QString("Middle"), QString("Right"), QString("left"),
                               QString("%1 of %2").arg(page + 1).arg(pages->count())})
        EXPECT_EQ(words.count(word), 1) << fromQt(word) << " on page " << page;
    }
    EXPECT_EQ(row, count);
  }
}

TEST(ReportOnPaper, CellsStandAsTheirColumnsSay) {
  const auto pages = layOut(numbered(1), a4());
  const double third = pages->body().width() / 3;
  const double padding = 6 * 20;
  EXPECT_NEAR(placeOf(*pages, "a1").left(), pages->body().left() + padding, 1);
  EXPECT_NEAR(placeOf(*pages, "b1").center().x(), pages->body().left() + third * 1.5, 5);
  EXPECT_NEAR(placeOf(*pages, "c1").right(), pages->body().right() - padding, 5);
}

TEST(ReportOnPaper, ALongCellIsWrappedAndThenCut) {
  auto report = numbered(3);
  report.cells[0] = "one two three four five six seven eight nine ten eleven twelve thirteen";
  report.cells[3] = std::string(200, 'W');
  report.cells[6] = std::string(5, 'W') + "\r\n" + "next";
  const auto pages = layOut(report, a4());
  const double edge = pages->body().left() + pages->body().width() / 3;
  std::vector<Written> lines;  // of the first column, from the first cell on
  for (const auto& written : textsOf(*pages, 0)) {
    if (written.place.left() >= edge - 200) continue;
    EXPECT_LE(written.place.right(), edge) << fromQt(written.text);
    if (!lines.empty() || written.text.startsWith("one two")) lines.push_back(written);
  }
  ASSERT_GT(lines.size(), 4U);
  EXPECT_GT(lines[1].place.top(), lines[0].place.bottom() - 40);
  EXPECT_TRUE(lines[1].text.endsWith(QChar(0x2026)));
  EXPECT_TRUE(lines[3].text.endsWith(QChar(0x2026)));
  EXPECT_TRUE(lines[4].text.startsWith("WWWWW next"));
}

TEST(ReportOnPaper, TurnsThePaperWhenTheColumnsNeedIt) {
  using Paper = ListLayout::Paper;
  const std::tuple<Paper, double, QPageLayout::Orientation> cases[] = {
      {Paper::Auto, 59, QPageLayout::Portrait},
      {Paper::Auto, 61, QPageLayout::Landscape},
      {Paper::Portrait, 90, QPageLayout::Portrait},
      {Paper::Landscape, 20, QPageLayout::Landscape}};
  for (const auto& [paper, width, orientation] : cases) {
    auto report = numbered(1, width);
    report.layout.paper = paper;
    EXPECT_EQ(layOut(report, a4())->paper().orientation(), orientation) << width;
  }
}

TEST(ReportOnPaper, HtmlRunsOverPages) {
  std::string html = "<html><body>";
  for (int line = 1; line <= 120; ++line) html += "<p>line" + std::to_string(line) + "</p>";
  const auto pages = layOut(PageReport{html}, a4());
  ASSERT_GT(pages->count(), 1);
  QStringList words;
  for (int page = 0; page < pages->count(); ++page)
    for (const auto& [text, place] : textsOf(*pages, page))
      if (pages->body().contains(place.center())) words << text;
  EXPECT_EQ(words.size(), 120);
  EXPECT_EQ(words.last(), "line120");
}

TEST(ReportOnPaper, SavesAsPdf) {
  const TemporaryFolder folder;
  const auto pages = layOut(numbered(100), a4());
  EXPECT_TRUE(savePdf(*pages, toQt(folder.file("list.pdf")), "List"));
  const auto pdf = readFile(folder.file("list.pdf"));
  EXPECT_TRUE(pdf.starts_with("%PDF-"));
  EXPECT_NE(pdf.find("/Count " + std::to_string(pages->count())), std::string::npos);
  EXPECT_FALSE(savePdf(*pages, toQt(folder.file("no such folder/list.pdf")), "List"));
}

/// Pages that note which of them were painted.
class CountedPages : public ReportPages {
 public:
  CountedPages() : ReportPages(a4()) {}
  int count() const override { return 300; }
  void paint(QPainter&, int page) const override { painted.insert(page); }
  mutable std::set<int> painted;
};

class Preview : public GuiTest {
 protected:
  Preview() {
    preview.show();
    settle();
  }
  void trigger(const QString& text) {
    for (auto* action : preview.findChildren<QAction*>())
      if (action->text() == text) return action->trigger();
    FAIL() << fromQt(text);
  }
  QSpinBox& page() { return *preview.findChild<QSpinBox*>(); }
  QComboBox& zoom() { return *preview.findChild<QComboBox*>(); }
  QSize shown() { return preview.findChild<QScrollArea*>()->widget()->size(); }

  CountedPages pages;
  ReportPreview preview{pages, "Preview", nullptr};
};

TEST_F(Preview, LeafsThroughThePagesAndPaintsWhatComesIntoViewAlone) {
  EXPECT_LE(pages.painted.size(), 2U);
  EXPECT_TRUE(pages.painted.contains(0));
  const std::pair<const char*, int> presses[] = {{"Last page", 300}, {"Next page", 300},
                                                 {"First page", 1},  {"Previous page", 1},
                                                 {"Next page", 2},   {"Previous page", 1}};
  for (const auto& [text, shown] : presses) {
    trigger(text);
    settle();
    EXPECT_EQ(page().value(), shown) << text;
    EXPECT_TRUE(pages.painted.contains(shown - 1));
    EXPECT_LE(pages.painted.size(), 6U);
  }
  page().setValue(150);
  settle();
  EXPECT_TRUE(pages.painted.contains(149));
}

TEST_F(Preview, ZoomsFromAWholePage) {
  const auto whole = shown();
  zoom().setCurrentText("Page width");
  const auto wide = shown();
  EXPECT_GT(wide.width(), whole.width());
  zoom().setCurrentText("100 %");
  const int paper = shown().width();
  zoom().setCurrentText("200 %");
  EXPECT_NEAR(shown().width() - 32, 2 * (paper - 32), 2);
  trigger("+");
  EXPECT_EQ(zoom().currentText(), "300 %");
  trigger(QStringLiteral("\u2212"));
  trigger(QStringLiteral("\u2212"));
  EXPECT_EQ(zoom().currentText(), "150 %");
  trigger("Next page");
  zoom().setCurrentText("25 %");
  EXPECT_EQ(page().value(), 2);
}

TEST(ReportRun, AMissingTemplateIsToldByItsName) {
  const TemporaryFolder folder;
  FolderDesktop desktop(folder.path());
  desktop.runReport({.templatePath = folder.file("Liste.rpt")});
  ASSERT_EQ(desktop.told.size(), 1U);
  EXPECT_NE(desktop.told.front().find(folder.file("Liste.rpt")), std::string::npos);
  EXPECT_FALSE(desktop.ended());
}

TEST(ReportRun, SavesAsPdfThroughTheDoor) {
  const TemporaryFolder folder;
  FolderDesktop desktop(folder.path());
  const auto logbook = folder.file("Logbuch.mdb");
  createDeliveredLogbook(logbook);
  std::filesystem::create_symlink(logbook, folder.file("own.pdf"));
  const auto before = readFile(logbook);
  desktop.setOwnFiles({logbook});
  desktop.files = {folder.file("own"), folder.file("card")};
  QTimer::singleShot(0, [] {
    auto& preview = dynamic_cast<ReportPreview&>(*QApplication::activeModalWidget());
    for (auto* action : preview.findChildren<QAction*>())
      if (action->text() == "Save as PDF...") action->trigger();
    preview.reject();
  });
  desktop.runReport({.templatePath = folder.write("Benutzer.rpt", "<p>A card</p>")});
  ASSERT_EQ(desktop.told.size(), 1U);
  EXPECT_TRUE(desktop.told.front().starts_with("'" + folder.file("own.pdf") + "' belongs"));
  EXPECT_EQ(readFile(logbook), before);
  EXPECT_TRUE(readFile(folder.file("card.pdf")).starts_with("%PDF-"));
}

TEST(ReportRun, WithoutAPrinterNothingIsPrinted) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "there is a printer here";
  FolderDesktop desktop({});
  desktop.runReport({.destination = ReportDestination::Printer});
  desktop.printText("text");
  const std::string none = "There is no printer. Please set one up in your system and try again.";
  EXPECT_EQ(desktop.told, (std::vector<std::string>{none, none}));
}

}  // namespace
}  // namespace nautrel
