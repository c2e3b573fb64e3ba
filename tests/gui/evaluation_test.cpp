#include <QClipboard>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "dives/Form3.h"
#include "evaluation/Form10.h"
#include "evaluation/Form6.h"
#include "gui/gui_test.h"
#include "platform/qt/chart_widget.h"
#include "platform/qt/qt_desktop.h"

namespace nautrel {
namespace {

class Evaluation : public GuiTest {
 protected:
  Form10& years() {
    addDives(1, 3);
    start();
    click(app->MDIForm1().Menü4b);
    settle();
    return app->Form10();
  }
};

TEST_F(Evaluation, TheChartOnTheScreenFollowsTheOptions) {
  auto& form = years();
  const auto& chart = widget<ChartWidget>(form.MSChart1);
  EXPECT_EQ(chart.data().kind, ChartKind::Line);
  ASSERT_EQ(chart.data().rows.size(), 10u);
  EXPECT_EQ(chart.data().rows.back().label, "2001");
  EXPECT_EQ(chart.data().rows.back().value, 3);
  EXPECT_EQ(chart.data().categoryTitle, "Years");
  EXPECT_EQ(chart.data().valueTitle, "Count");
  const std::pair<OptionButton*, ChartKind> kinds[] = {{&form.Option2, ChartKind::Area3D},
                                                       {&form.Option3, ChartKind::Bars3D},
                                                       {&form.Option4, ChartKind::Bars},
                                                       {&form.Option1, ChartKind::Line}};
  for (const auto& [option, kind] : kinds) {
    mouse(*option);
    EXPECT_EQ(chart.data().kind, kind);
    EXPECT_EQ(chart.data().rotation, isSpatial(kind));
    EXPECT_EQ(widget(form.Label3).isVisible(), isSpatial(kind));
    EXPECT_EQ(widget(form.Label2).isVisible(), !isSpatial(kind));
  }
}

TEST_F(Evaluation, NothingJumpsWhenTheHintTakesThePlaceOfTheYear) {
  auto& form = years();
  const auto before = widget(form.MSChart1).geometry();
  mouse(form.Option3);
  EXPECT_EQ(widget(form.MSChart1).geometry(), before);
  const auto& hint = widget(form.Label3);
  EXPECT_GE(hint.width(), hint.sizeHint().width());
}

/// The real desktop over a folder of the test; only its boxes are not shown.
class FolderDesktop : public QtDesktop {
 public:
  explicit FolderDesktop(std::string folder) : folder_(std::move(folder)) {}
  std::vector<std::string> shown;

 protected:
  int showMessage(const std::string& prompt, int, const std::string&) override {
    shown.push_back(prompt);
    return kOk;
  }
  std::string readSetting(const std::string&, const std::string&) override { return {}; }
  std::string executableFolder() override { return folder_; }

 private:
  std::string folder_;
};

/// The program over the real desktop.
class EvaluationDesktop : public GuiTest {
 protected:
  EvaluationDesktop() : real(folder.path()) {
    app = std::make_unique<Nautrel>(real);
    looks = std::make_unique<QtLooks>(*app);
    app->setLooks(looks.get());
    real.setLooks(looks.get());
  }
  ~EvaluationDesktop() override { app.reset(); }

  FolderDesktop real;
};

TEST_F(EvaluationDesktop, TheClipboardGetsPictureAndRows) {
  addDives(1, 2);
  start();
  click(app->MDIForm1().Menü4b);
  settle();
  QApplication::clipboard()->clear();
  mouse(app->Form10().Command1);
  const auto* copied = QApplication::clipboard()->mimeData();
  EXPECT_FALSE(copied->imageData().value<QImage>().isNull());
  const auto lines = copied->text().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 11);
  EXPECT_EQ(lines.front(), "Years\tCount");
  EXPECT_TRUE(lines.back().endsWith("\t0")) << fromQt(lines.back());
  EXPECT_EQ(real.shown,
            std::vector<std::string>{"The graph and the data was copied to clipboard."});
}

TEST_F(EvaluationDesktop, TheMenuDropsBelowTheNumberAndShowsTheDive) {
  addDives(4, 6);
  start();
  click(app->MDIForm1().Menü4a);
  settle();
  auto& form = app->Form6();
  auto& button = widget<QPushButton>(form.Command6);
  QPoint dropped;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    dropped = menu->pos();
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  const auto below = button.mapToGlobal(QPoint(0, button.height()));
  mouse(button);
  EXPECT_EQ(dropped, below);
  EXPECT_EQ(app->Form3().Text1.text(), "4");
  EXPECT_EQ(window(form)->pos(), QPoint(0, 0));
}

}  // namespace
}  // namespace nautrel
