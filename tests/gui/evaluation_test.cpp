// SPDX-License-Identifier: GPL-2.0-or-later
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
#include "look/charts/chart_widget.h"

namespace nautrel {
namespace {

TEST_F(GuiTest, TheChartOnTheScreenFollowsTheOptionsAndNothingJumps) {
  addDives(1, 3);
  auto& form = open(&MDIForm1::Menü4b, &Nautrel::Form10);
  const auto& chart = widget<ChartWidget>(form.MSChart1);
  EXPECT_EQ(chart.data().kind, ChartKind::Line);
  ASSERT_EQ(chart.data().rows.size(), 10u);
  EXPECT_EQ(chart.data().rows.back().label, "2001");
  EXPECT_EQ(chart.data().rows.back().value, 3);
  EXPECT_EQ(chart.data().categoryTitle, "Years");
  EXPECT_EQ(chart.data().valueTitle, "Count");
  const auto place = chart.geometry();
  const std::pair<OptionButton*, ChartKind> kinds[] = {{&form.Option2, ChartKind::Area3D},
                                                       {&form.Option3, ChartKind::Bars3D},
                                                       {&form.Option4, ChartKind::Bars},
                                                       {&form.Option1, ChartKind::Line}};
  for (const auto& [option, kind] : kinds) {
    mouse(*option);
    EXPECT_EQ(chart.data().kind, kind);
    EXPECT_EQ(chart.data().rotation, isSpatial(kind));
    EXPECT_EQ(chart.geometry(), place);
    EXPECT_EQ(widget(form.Label3).isVisible(), isSpatial(kind));
    EXPECT_EQ(widget(form.Label2).isVisible(), !isSpatial(kind));
    const auto& hint = widget(form.Label3);
    EXPECT_TRUE(!isSpatial(kind) || hint.width() >= hint.sizeHint().width());
  }
}

TEST_F(GuiTest, AFaultWhileAChartIsPaintedEndsTheProgram) {
  addDives(1, 1);
  auto& form = open(&MDIForm1::Menü4b, &Nautrel::Form10);
  widget<ChartWidget>(form.MSChart1).edge([] { throw std::bad_alloc(); });
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, OutOfMemory);
}

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
  QApplication::clipboard()->clear();
  mouse(open(&MDIForm1::Menü4b, &Nautrel::Form10).Command1);
  const auto* copied = QApplication::clipboard()->mimeData();
  EXPECT_FALSE(copied->imageData().value<QImage>().isNull());
  const auto lines = copied->text().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 11);
  EXPECT_EQ(lines.front(), "Years\tCount");
  EXPECT_TRUE(lines.back().endsWith("\t0")) << fromQt(lines.back());
  EXPECT_EQ(real.told, std::vector<std::string>{"The graph and the data was copied to clipboard."});
}

TEST_F(EvaluationDesktop, TheMenuDropsBelowTheNumberAndShowsTheDive) {
  addDives(4, 6);
  auto& form = open(&MDIForm1::Menü4a, &Nautrel::Form6);
  auto& button = widget<QPushButton>(form.Command6);
  QPoint dropped;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    dropped = menu->pos();
    key(Qt::Key_Down);
    key(Qt::Key_Return);
  });
  const auto below = button.mapToGlobal(QPoint(0, button.height()));
  mouse(button);
  EXPECT_EQ(dropped, below);
  EXPECT_EQ(app->Form3().Text1.text(), "4");
  EXPECT_EQ(window(form)->pos(), QPoint(0, 0));
}

}  // namespace
}  // namespace nautrel
