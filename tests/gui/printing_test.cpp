// SPDX-License-Identifier: GPL-2.0-or-later
#include <QPaintEngine>
#include <QPainter>
#include <filesystem>

#include "gui_test.h"
#include "look/reports/report_pages.h"

#ifndef Q_OS_WIN
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#endif

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
      if (painter()->hasClipping() && !painter()->clipBoundingRect().contains(at)) return;
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

QPageLayout sheetOf(QPageSize::PageSizeId paper, QPageLayout::Orientation orientation) {
  return {QPageSize(paper), orientation, {15, 15, 15, 15}, QPageLayout::Millimeter};
}
QPageLayout a4() {
  return sheetOf(QPageSize::A4, QPageLayout::Portrait);
}

ReportFrame someFrame() {
  return {"Title", "Range", [](int page, int pages) {
            return "left | " + std::to_string(page) + " of " + std::to_string(pages);
          }};
}

ListReport numbered(int rows) {
  using Alignment = ListLayout::Alignment;
  ListReport report{someFrame()};
  report.layout.columns = {{"Left", 30, Alignment::Left},
                           {"Middle", 30, Alignment::Center},
                           {"Right", 30, Alignment::Right}};
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
  const auto place = [&](const char* text) { return placeOf(*pages, text); };
  EXPECT_NEAR(place("a1").left(), place("Left").left(), 1);
  EXPECT_NEAR(place("b1").center().x(), place("Middle").center().x(), 5);
  EXPECT_NEAR(place("c1").right(), place("Right").right(), 5);
  EXPECT_NEAR(place("a1").left() - pages->body().left(),
              pages->body().right() - place("c1").right(), 5);
}

TEST(ReportOnPaper, ALongCellIsWrappedAndThenCut) {
  auto report = numbered(3);
  report.cells[0] = "one two three four five six seven eight nine ten eleven twelve thirteen";
  report.cells[0] += report.cells[0] + report.cells[0];
  report.cells[0] += report.cells[0];
  report.cells[3] = std::string(200, 'W');
  report.cells[6] = std::string("WWW\r\nnext\x1F\x07one");
  const auto pages = layOut(report, a4());
  const double edge = placeOf(*pages, "b1").left();
  std::vector<Written> lines;  // of the first column, from the first cell on
  for (const auto& written : textsOf(*pages, 0)) {
    if (lines.empty() && !written.text.startsWith("one two")) continue;
    if (written.place.left() > edge - 200 || written.text == "left") continue;
    EXPECT_LE(written.place.right(), edge) << fromQt(written.text);
    lines.push_back(written);
  }
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_GT(lines[1].place.top(), lines[0].place.bottom() - 40);
  EXPECT_TRUE(lines[1].text.endsWith(QChar(0x2026)));
  EXPECT_TRUE(lines[3].text.endsWith(QChar(0x2026)));
  EXPECT_EQ(lines[4].text, "WWW next one");
}

TEST(ReportOnPaper, TurnsThePaperWhenTheColumnsNeedIt) {
  using Paper = ListLayout::Paper;
  const std::tuple<Paper, int, QPageLayout::Orientation> cases[] = {
      {Paper::Auto, 20, QPageLayout::Portrait},
      {Paper::Auto, 90, QPageLayout::Landscape},
      {Paper::Portrait, 90, QPageLayout::Portrait},
      {Paper::Landscape, 2, QPageLayout::Landscape}};
  for (const auto& [paper, length, orientation] : cases) {
    auto report = numbered(1);
    report.cells[0] = std::string(static_cast<std::size_t>(length), 'n');
    report.layout.paper = paper;
    EXPECT_EQ(layOut(report, a4())->paper().orientation(), orientation) << length;
    EXPECT_EQ(layOut(report, a4(), Turning::Never)->paper(), a4());
  }
}

/// The delivered list's columns, with the longest that its boxes take and some that are longer.
ListReport fullList(ListLayout::Paper paper) {
  using Alignment = ListLayout::Alignment;
  ListReport report{someFrame()};
  report.layout.paper = paper;
  report.layout.columns = {
      {"#", 12, Alignment::Right},     {"Date", 24},       {"Country", 44},
      {"City / Island", 46},           {"Dive place", 50}, {"Time", 18, Alignment::Right},
      {"Depth", 18, Alignment::Right}, {"Buddy", 46}};
  for (int row = 0; row < 40; ++row)
    for (const char* cell :
         {"9999", "21.10.1990", row % 3 == 0 ? "Bosnien-Herzegowina X" : "Dominican Republic X",
          "Palma de Mallorca XY", "Unterwasserpark Ost.", "9999 min", "999.99 ft",
          row == 7 ? "A name that goes on and on and on" : "Michael Oberhauser"})
      report.cells.emplace_back(cell);
  return report;
}

TEST(ReportOnPaper, NumbersDatesAndHeadsAreNeverBrokenOnAnyPaper) {
  using Paper = ListLayout::Paper;
  for (const auto size :
       {QPageSize::A4, QPageSize::Letter, QPageSize::Legal, QPageSize::A5, QPageSize::B5})
    for (const auto paper : {Paper::Auto, Paper::Portrait, Paper::Landscape}) {
      const auto pages = layOut(fullList(paper), sheetOf(size, QPageLayout::Portrait));
      SCOPED_TRACE(fromQt(QPageSize::name(size)) + std::to_string(static_cast<int>(paper)));
      const bool tight = size == QPageSize::A5 && paper == Paper::Portrait;  // for words
      QStringList words;
      for (const auto& [text, place] : textsOf(*pages, 0)) {
        EXPECT_TRUE(pages->body().adjusted(-2, -2, 2, 2).contains(place)) << fromQt(text);
        EXPECT_FALSE(text.contains(QChar(0x2026)) && text[0].isDigit()) << fromQt(text);
        words << text.split(' ');
      }
      for (const char* word : {"Date", "Country", "Island", "place", "Time", "Depth", "Buddy"})
        EXPECT_EQ(words.count(word), 1) << word;
      for (const char* word :
           {"21.10.1990", "min", "ft", "Dominican", "Oberhauser", "Unterwasserpark"})
        EXPECT_TRUE(words.count(word) > 4 || tight) << word;
      EXPECT_EQ(words.count("9999"), 2 * words.count("999.99"));
    }
}

TEST(ReportOnPaper, WordsStandWholeWhereSmallerTextHasRoomForThem) {
  for (int width = 155; width <= 200; width += 3) {
    const QPageLayout sheet(QPageSize(QSizeF(width, 250), QPageSize::Millimeter),
                            QPageLayout::Portrait, {15, 15, 15, 15}, QPageLayout::Millimeter);
    QStringList words;
    for (const auto& [text, place] :
         textsOf(*layOut(fullList(ListLayout::Paper::Portrait), sheet), 0))
      words << text.split(' ');
    for (const char* word : {"Dominican", "Oberhauser", "Unterwasserpark"})
      EXPECT_GT(words.count(word), 4) << word << " at " << width << " mm";
  }
}

QStringList linesOn(const ReportPages& pages, int page) {
  QStringList lines;
  for (const auto& [text, place] : textsOf(pages, page)) lines << text;
  return lines;
}

TEST(ReportOnPaper, HtmlRunsOverPages) {
  std::string html = "<html><body>";
  for (int line = 1; line <= 120; ++line) html += "<p>line" + std::to_string(line) + "</p>";
  const auto pages = layOut(PageReport{someFrame(), html}, a4());
  ASSERT_GT(pages->count(), 1);
  QStringList words;
  for (int page = 0; page < pages->count(); ++page) {
    const auto lines = linesOn(*pages, page);
    for (const auto& word : {QString("Title"), QString("Range"), QString("left"),
                             QString("%1 of %2").arg(page + 1).arg(pages->count())})
      EXPECT_EQ(lines.count(word), 1) << fromQt(word) << " on page " << page;
    words << lines.filter("line");
  }
  EXPECT_EQ(words.size(), 120);
  EXPECT_EQ(words.last(), "line120");
}

TEST(ReportOnPaper, WhatFollowsAHeadingStaysWithIt) {
  const int heights[] = {20, 25, 24, 90, 3};  // lines; an A5 page holds some 40
  std::string html;
  for (const int height : heights) {
    html += "<h2>head" + std::to_string(height) + "</h2><table width='100%'>";
    for (int line = 0; line < height; ++line)
      html += "<tr><td>in" + std::to_string(height) + "</td></tr>";
    html += "</table>";
  }
  const auto pages = layOut(PageReport{{}, html}, sheetOf(QPageSize::A5, QPageLayout::Portrait));
  for (const int height : heights) {
    int parts = 0;
    for (int page = 0; page < pages->count(); ++page) {
      const auto lines = linesOn(*pages, page);
      const auto rows = lines.count(QString("in%1").arg(height));
      parts += rows > 0;
      if (lines.contains(QString("head%1").arg(height))) {
        EXPECT_GE(rows, std::min(height, 4)) << height;
      }
    }
    EXPECT_LE(parts, height == 90 ? 4 : 1) << height;
  }
}

TEST(ReportOnPaper, ATemplateShowsPicturesOfItsFolderAlone) {
  const TemporaryFolder outer;
  std::filesystem::create_directory(outer.file("home"));
  std::filesystem::create_directory(outer.file("home/sub"));
  QImage image(30, 20, QImage::Format_RGB32);
  image.fill(Qt::red);
  for (const char* file : {"home/logo.png", "home/sub/ä b.jpg", "outside.png"})
    ASSERT_TRUE(image.save(toQt(outer.file(file))));
  outer.write("home/text.png", "no picture");
  outer.write("home/drawing.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
  std::filesystem::create_symlink(outer.file("outside.png"), outer.file("home/link.png"));
#ifndef Q_OS_WIN
  ASSERT_EQ(mkfifo(outer.file("home/pipe.png").c_str(), 0600), 0);
#endif
  const std::pair<std::string, const char*> cases[] = {
      {"logo.png", ""},
      {"sub/ä b.jpg", ""},
      {"./sub/../logo.png", ""},
      {outer.file("home/logo.png"), ""},
      {"file://" + outer.file("home/logo.png"), ""},
      {"data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVQI12P4//8/"
       "AAX+Av7czFnnAAAAAElFTkSuQmCC",
       ""},
      {"gone.png", "is not there"},
      {"", "elsewhere"},
      {"sub", "is no file"},
      {"pipe.png", "is no file"},
      {"/dev/zero", "stands elsewhere"},
      {"../outside.png", "stands elsewhere"},
      {"link.png", "stands elsewhere"},
      {"text.png", "is none"},
      {"drawing.svg", "is none"},
      {"data:text/html;base64,PGI+", "is none"},
      {"http://127.0.0.1/logo.png", "elsewhere"},
      {":/logo.png", "elsewhere"}};
  for (const auto& [name, fault] : cases)
    for (const auto* use : {"<img src=\"%1\"/>", "<table background=\"%1\"><tr><td>x</table>"}) {
      if (name.empty() && use[1] == 't') continue;
      PageReport report{{}, fromQt(QString(use).arg(toQt(name))), outer.file("home")};
      std::string told;
      try {
        layOut(report, a4());
      } catch (const ReportFault& caught) {
        told = caught.text;
      }
      if (fault[0] == 0) {
        EXPECT_EQ(told, "") << name;
      } else {
        EXPECT_NE(told.find(fault), std::string::npos) << name << ": " << told;
      }
    }
}

std::string faultOfSaving(const ReportPages& pages, const std::string& path) {
  try {
    savePdf(pages, toQt(path), "List");
  } catch (const ReportFault& fault) {
    return fault.text;
  }
  return {};
}

TEST(ReportOnPaper, SavesAsPdf) {
  const TemporaryFolder folder;
  const auto pages = layOut(numbered(100), a4());
  const auto path = folder.file("list.pdf");
  EXPECT_EQ(faultOfSaving(*pages, path), "");
  const auto pdf = readFile(path);
  EXPECT_TRUE(pdf.starts_with("%PDF-"));
  EXPECT_NE(pdf.find("/Count " + std::to_string(pages->count())), std::string::npos);
  const std::string told = "The PDF could not be saved: ";
  EXPECT_TRUE(faultOfSaving(*pages, folder.file("no such folder/list.pdf")).starts_with(told));
#ifndef Q_OS_WIN
  // A file that may not grow stands for a disk that is full.
  signal(SIGXFSZ, SIG_IGN);
  for (const auto most : {std::size_t{10}, pdf.size() / 2, pdf.size() - 10}) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{most, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const auto fault = faultOfSaving(*pages, path);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(fault, told + std::strerror(EFBIG)) << most;
    EXPECT_EQ(readFile(path), pdf) << most;
  }
#endif
}

}  // namespace
}  // namespace nautrel
