// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_preview.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>
#include <QWheelEvent>
#include <filesystem>
#include <set>

#include "gui_test.h"
#include "look/reports/pages_view.h"
#include "look/reports/report_pages.h"
#include "store/delivered.h"

namespace nautrel {
namespace {

/// Pages that note which of them were painted.
class CountedPages : public ReportPages {
 public:
  CountedPages()
      : ReportPages({QPageSize(QPageSize::A4), QPageLayout::Portrait, {15, 15, 15, 15}}) {}
  int count() const override { return all; }
  void paint(QPainter&, int page) const override {
    painted.insert(page);
    if (fails) throw std::bad_alloc();
  }
  mutable std::set<int> painted;
  bool fails = false;
  int all = 300;
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

TEST_F(Preview, HasNoBarBesideAPageThatIsWholeAndAlone) {
  EXPECT_TRUE(preview.findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
  pages.all = 1;
  ReportPreview single(pages, "Preview", nullptr);
  single.show();
  settle();
  const auto* bar = single.findChild<QScrollArea*>()->verticalScrollBar();
  EXPECT_FALSE(bar->isVisible());
  single.findChild<QComboBox*>()->setCurrentText("200 %");
  settle();
  EXPECT_TRUE(bar->isVisible());
}

TEST_F(Preview, IsReadByTheKeyboardAndTheWheel) {
  EXPECT_LE(preview.width(), preview.screen()->availableGeometry().width());
  const struct {
    const char* zoom;
    Qt::Key key;
    Qt::KeyboardModifier with;
    int page;
  } presses[] = {
      {"Whole page", Qt::Key_End, Qt::NoModifier, 300},
      {"Whole page", Qt::Key_PageUp, Qt::NoModifier, 299},
      {"Whole page", Qt::Key_PageDown, Qt::NoModifier, 300},
      {"Whole page", Qt::Key_Home, Qt::NoModifier, 1},
      {"Whole page", Qt::Key_PageDown, Qt::NoModifier, 2},
      {"200 %", Qt::Key_End, Qt::ControlModifier, 300},
      {"200 %", Qt::Key_Home, Qt::ControlModifier, 1},
      {"200 %", Qt::Key_PageDown, Qt::NoModifier, 1},
      {"200 %", Qt::Key_PageDown, Qt::NoModifier, 1},
      {"200 %", Qt::Key_PageDown, Qt::NoModifier, 2},
  };
  for (const auto& [zoomed, key, with, shown] : presses) {
    zoom().setCurrentText(zoomed);
    QTest::keyClick(preview.windowHandle(), key, with);
    settle();
    EXPECT_EQ(page().value(), shown) << zoomed << " key " << key;
  }
  auto& view = *preview.findChild<QScrollArea*>()->viewport();
  const std::pair<int, const char*> turns[] = {
      {120, "300 %"}, {60, "300 %"}, {60, "400 %"}, {-240, "200 %"}};
  for (const auto& [angle, zoomed] : turns) {
    QWheelEvent turn({9, 9}, view.mapToGlobal(QPointF(9, 9)), {}, {0, angle}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &turn);
    EXPECT_EQ(zoom().currentText(), zoomed) << angle;
  }
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

TEST_F(Preview, AFaultWhileAPageIsPaintedGoesNoFurtherThanItsEdge) {
  int faults = 0;
  preview.setEdge([&](const auto& step) {
    try {
      step();
    } catch (const std::bad_alloc&) {
      ++faults;
    }
  });
  pages.fails = true;
  preview.grab();
  EXPECT_EQ(faults, 1);
}

TEST(ReportRun, AFaultWhileAPageIsPaintedEndsTheProgram) {
  const TemporaryFolder folder;
  FolderDesktop desktop(folder.path());
  createDeliveredLogbook(folder.file("Logbuch.mdb"));
  QTimer::singleShot(0, [] {
    auto& preview = dynamic_cast<ReportPreview&>(*QApplication::activeModalWidget());
    auto* view = preview.findChild<QScrollArea*>()->widget();
    dynamic_cast<PagesView&>(*view).edge([] { throw std::bad_alloc(); });
    preview.reject();
  });
  EXPECT_THROW(desktop.runReport({.templatePath = folder.write("Some.rpt", "<p>A card</p>")}),
               ProgramEnd);
  ASSERT_TRUE(desktop.failure());
  EXPECT_EQ(desktop.failure()->number, OutOfMemory);
  // The toolkit opens no dialog any more until a loop has begun anew.
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QApplication::exec();
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

TEST(ReportRun, WithoutAPrinterAFileIsOffered) {
  const TemporaryFolder folder;
  FolderDesktop desktop(folder.path());
  createDeliveredLogbook(folder.file("Logbuch.mdb"));
  QTimer::singleShot(0, [] {
    auto* dialog = QApplication::activeModalWidget();
    auto& printers = *dialog->findChild<QComboBox*>();
    printers.setCurrentText("PDF file");
    EXPECT_EQ(printers.currentIndex(), printers.count() - 1);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  EXPECT_TRUE(desktop.setUpPrinter());
  desktop.files = {folder.file("list"), folder.file("card"), folder.file("text"),
                   folder.file("none/x")};
  const auto print = [&](const std::string& source) {
    desktop.runReport({.templatePath = folder.write("Some.rpt", source),
                       .destination = ReportDestination::Printer});
  };
  print("rows: Logbuch\ncolumn: # | 9 | left | {{Nr}}");
  print("<p>A card</p>");
  desktop.printText("text");
  for (const char* name : {"list.pdf", "card.pdf", "text.pdf"})
    EXPECT_TRUE(readFile(folder.file(name)).starts_with("%PDF-")) << name;
  EXPECT_TRUE(desktop.told.empty());
  print("<p>into no folder, and then nowhere</p>");
  EXPECT_EQ(desktop.told.size(), 1U);
}

}  // namespace
}  // namespace nautrel
