#include "platform/qt/report_preview.h"

#include <QAction>
#include <QComboBox>
#include <QPrinterInfo>
#include <QScrollArea>
#include <QSpinBox>
#include <QTimer>
#include <filesystem>
#include <set>

#include "gui_test.h"
#include "platform/qt/report_pages.h"
#include "store/delivered.h"

namespace nautrel {
namespace {

/// Pages that note which of them were painted.
class CountedPages : public ReportPages {
 public:
  CountedPages()
      : ReportPages({QPageSize(QPageSize::A4), QPageLayout::Portrait, {15, 15, 15, 15}}) {}
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
