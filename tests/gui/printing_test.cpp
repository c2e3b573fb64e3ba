#include <QAction>
#include <QComboBox>
#include <QPaintEngine>
#include <QPainter>
#include <QPrinterInfo>
#include <QScrollArea>
#include <QSpinBox>
#include <algorithm>
#include <set>

#include "gui_test.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/report_pages.h"
#include "platform/qt/report_preview.h"

namespace nautrel {
namespace {

struct Written {
  QString text;
  QRectF place;  // twips of the sheet
};

/// A device that notes the texts painted on it, and where.
class Recorder : public QPaintDevice {
 public:
  std::vector<Written> texts;

  QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
      case PdmHeight:
        return 100000;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      default:
        return 1440;
    }
  }

 private:
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

QStringList wordsOf(const ReportPages& pages, int page) {
  QStringList words;
  for (const auto& written : textsOf(pages, page)) words << written.text;
  return words;
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
  const auto pages = layOut(numbered(200), a4());
  ASSERT_GT(pages->count(), 2);
  QStringList rows;
  for (int page = 0; page < pages->count(); ++page) {
    for (const auto& [text, place] : textsOf(*pages, page)) {
      EXPECT_TRUE(pages->body().adjusted(-1, -1, 1, 1).contains(place)) << fromQt(text);
      if (text.startsWith('a')) rows << text;
    }
    const auto words = wordsOf(*pages, page);
    for (const auto& word :
         {QString("Title"), QString("Range"), QString("Left"), QString("Middle"), QString("Right"),
          QString("left"), QString("%1 of %2").arg(page + 1).arg(pages->count())})
      EXPECT_EQ(words.count(word), 1) << fromQt(word) << " on page " << page;
  }
  ASSERT_EQ(rows.size(), 200);
  for (int row = 0; row < 200; ++row) EXPECT_EQ(rows[row], QString("a%1").arg(row + 1));
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
  std::vector<Written> first;
  for (const auto& written : textsOf(*pages, 0))
    if (written.place.left() < edge - 200) {
      EXPECT_LE(written.place.right(), edge) << fromQt(written.text);
      first.push_back(written);
    }
  const auto line = [&](const QString& start) {
    const auto it = std::find_if(first.begin(), first.end(), [&](const Written& written) {
      return written.text.startsWith(start);
    });
    return it == first.end() ? first.size() : static_cast<std::size_t>(it - first.begin());
  };
  const auto wrapped = line("one two");
  ASSERT_LT(wrapped + 3, first.size());
  EXPECT_GT(first[wrapped + 1].place.top(), first[wrapped].place.bottom() - 40);
  EXPECT_TRUE(first[wrapped + 1].text.endsWith(QChar(0x2026)));
  EXPECT_TRUE(first[wrapped + 3].text.endsWith(QChar(0x2026)));
  EXPECT_LT(line("WWWWW next"), first.size());
}

TEST(ReportOnPaper, TurnsThePaperWhenTheColumnsNeedIt) {
  using Paper = ListLayout::Paper;
  struct Case {
    Paper paper;
    double width;
    QPageLayout::Orientation orientation;
  };
  const Case cases[] = {{Paper::Auto, 59, QPageLayout::Portrait},
                        {Paper::Auto, 61, QPageLayout::Landscape},
                        {Paper::Portrait, 90, QPageLayout::Portrait},
                        {Paper::Landscape, 20, QPageLayout::Landscape}};
  for (const auto& [paper, width, orientation] : cases) {
    auto report = numbered(1, width);
    report.layout.paper = paper;
    EXPECT_EQ(layOut(report, a4())->paper().orientation(), orientation) << width;
  }
}

TEST(ReportOnPaper, AnEmptyListIsAPageWithHeads) {
  const auto pages = layOut(numbered(0), a4());
  EXPECT_EQ(pages->count(), 1);
  EXPECT_TRUE(wordsOf(*pages, 0).contains("1 of 1"));
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

TEST_F(Preview, PaintsWhatComesIntoViewAlone) {
  EXPECT_LE(pages.painted.size(), 2U);
  EXPECT_TRUE(pages.painted.contains(0));
  trigger("Last page");
  settle();
  EXPECT_TRUE(pages.painted.contains(299));
  EXPECT_LE(pages.painted.size(), 4U);
}

TEST_F(Preview, LeafsThroughThePages) {
  const std::pair<const char*, int> presses[] = {
      {"Next page", 2},   {"Next page", 3},  {"Previous page", 2}, {"Last page", 300},
      {"Next page", 300}, {"First page", 1}, {"Previous page", 1}};
  for (const auto& [text, shown] : presses) {
    trigger(text);
    settle();
    EXPECT_EQ(page().value(), shown) << text;
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

/// The real desktop, but for what it tells.
class TellingDesktop : public QtDesktop {
 public:
  std::vector<std::string> told;

 protected:
  int showMessage(const std::string& prompt, int, const std::string&) override {
    told.push_back(prompt);
    return kOk;
  }
};

TEST(ReportRun, AMissingTemplateIsToldByItsName) {
  const TemporaryFolder folder;
  TellingDesktop desktop;
  desktop.runReport({.templatePath = folder.file("Liste.rpt")});
  ASSERT_EQ(desktop.told.size(), 1U);
  EXPECT_NE(desktop.told.front().find(folder.file("Liste.rpt")), std::string::npos);
  EXPECT_FALSE(desktop.ended());
}

TEST(ReportRun, WithoutAPrinterNothingIsPrinted) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "there is a printer here";
  TellingDesktop desktop;
  desktop.runReport({.destination = ReportDestination::Printer});
  desktop.printText("text");
  const std::string none = "There is no printer. Please set one up in your system and try again.";
  EXPECT_EQ(desktop.told, (std::vector<std::string>{none, none}));
}

}  // namespace
}  // namespace nautrel
