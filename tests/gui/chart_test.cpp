// SPDX-License-Identifier: GPL-2.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QMimeData>
#include <QMouseEvent>
#include <QPolygonF>

#include "look/charts/chart_layout.h"
#include "look/charts/chart_widget.h"

namespace nautrel {
namespace {

constexpr ChartKind kKinds[] = {ChartKind::Bars3D, ChartKind::Bars, ChartKind::Line,
                                ChartKind::Area3D};

ChartData years(ChartKind kind) {
  ChartData data{"Years", "Count", {}, kind, isSpatial(kind)};
  for (int year = 2017; year <= 2026; ++year)
    data.rows.push_back({QString::number(year), static_cast<double>(year % 7)});
  return data;
}

ChartData months(ChartKind kind) {
  ChartData data{"Month", "Percent", {}, kind, isSpatial(kind)};
  for (const char* month :
       {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"})
    data.rows.push_back({month, 8.3333});
  return data;
}

TEST(ChartAxisTest, StepsAreNice) {
  const struct {
    double greatest;
    bool counts;
    int mostSteps;
    double step;
    int steps;
    const char* last;
  } cases[] = {
      {0, true, 8, 1, 1, "1"},
      {1, true, 8, 1, 1, "1"},
      {9, true, 8, 2, 5, "10"},
      {9999, true, 4, 5000, 2, "10,000"},
      {33.3333333333333, false, 8, 5, 7, "35"},
      {0.7, false, 8, 0.1, 7, "0.7"},
      {0.3, false, 3, 0.1, 3, "0.3"},
      {1e300, false, 5, 2e299, 5, "1E+300"},
  };
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  for (const auto& [greatest, counts, mostSteps, step, steps, last] : cases) {
    const ChartAxis axis = niceAxis(greatest, counts, mostSteps);
    EXPECT_DOUBLE_EQ(axis.step, step) << greatest;
    EXPECT_EQ(axis.steps, steps) << greatest;
    EXPECT_EQ(axis.label(axis.steps), last);
    EXPECT_GE(axis.top(), greatest * (1 - 1e-12));
  }
  const double nothing = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(niceAxis(nothing, false, 5).steps, 1);
}

/// Everything written in a chart, as the areas it takes.
std::vector<QPolygonF> texts(const ChartData& data, const ChartLayout& layout,
                             const QFontMetricsF& font) {
  std::vector<QPolygonF> all;
  for (int tick = 0; tick <= layout.axis().steps; ++tick) {
    const QSizeF size(font.horizontalAdvance(layout.axis().label(tick)), font.height());
    const QPointF end = layout.valueLabelEnd(tick);
    all.emplace_back(QRectF({end.x() - size.width(), end.y() - size.height() / 2}, size));
  }
  for (int row = 0; row < static_cast<int>(data.rows.size()); row += layout.labelStride()) {
    const QString& label = data.rows[static_cast<std::size_t>(row)].label;
    const QRectF rect = layout.categoryLabelRect(font.horizontalAdvance(label));
    all.push_back(layout.categoryLabelPlace(row).map(QPolygonF(rect)));
  }
  all.emplace_back(layout.valueTitle());
  all.emplace_back(layout.categoryTitle());
  return all;
}

TEST(ChartLayoutTest, NoTextIsCutOrTouchesAnotherAndFlatChartsNameEveryRow) {
  const QFontMetricsF font{QFont()};
  for (const ChartKind kind : kKinds)
    for (const ChartData& data : {years(kind), months(kind)})
      for (const QSize size : {QSize(300, 200), QSize(380, 240), QSize(560, 360), QSize(1600, 900)})
        for (const double yaw : {-60, -20, 0, 20, 60})
          for (const double pitch : {0, 16, 45}) {
            const QRectF rect({}, size);
            const ChartLayout layout(data, {yaw, pitch}, font, rect);
            const auto all = texts(data, layout, font);
            EXPECT_TRUE(isSpatial(kind) || layout.labelStride() == 1);
            SCOPED_TRACE(testing::Message()
                         << "kind " << static_cast<int>(kind) << ", " << data.rows.size()
                         << " rows, width " << size.width() << ", turned " << yaw << " " << pitch);
            for (std::size_t i = 0; i < all.size(); ++i) {
              EXPECT_TRUE(rect.contains(all[i].boundingRect())) << "cut: " << i;
              for (std::size_t j = i + 1; j < all.size(); ++j) {
                const QRectF common = all[i].intersected(all[j]).boundingRect();
                EXPECT_TRUE(common.width() < 1 || common.height() < 1) << i << " on " << j;
              }
            }
          }
}

class ChartWidgetTest : public testing::Test {
 protected:
  ChartWidgetTest() { chart.resize(500, 320); }

  /// Whether the picture is another one after the mouse was dragged.
  bool turns(Qt::KeyboardModifiers modifiers) {
    const QImage before = chart.grab().toImage();
    const auto send = [&](QEvent::Type type, QPointF place) {
      QMouseEvent event(type, place, place, Qt::LeftButton, Qt::LeftButton, modifiers);
      QApplication::sendEvent(&chart, &event);
    };
    send(QEvent::MouseButtonPress, {200, 100});
    send(QEvent::MouseMove, {260, 130});
    send(QEvent::MouseButtonRelease, {260, 130});
    return chart.grab().toImage() != before;
  }

  ChartWidget chart;
};

TEST_F(ChartWidgetTest, TurnsOnlyWithCtrlInSpaceAndIfAllowed) {
  for (const ChartKind kind : kKinds) {
    chart.setData(years(kind));
    EXPECT_FALSE(turns(Qt::NoModifier));
    EXPECT_EQ(turns(Qt::ControlModifier), isSpatial(kind));
    ChartData fixed = years(kind);
    fixed.rotation = false;
    chart.setData(fixed);
    EXPECT_FALSE(turns(Qt::ControlModifier));
  }
}

TEST_F(ChartWidgetTest, PaintsAndPointsWithinItsEdge) {
  int steps = 0;
  chart.edge = [&](const auto&) { ++steps; };
  chart.grab();
  QHelpEvent pointing(QEvent::ToolTip, {200, 100}, {200, 100});
  QApplication::sendEvent(&chart, &pointing);
  EXPECT_EQ(steps, 2);
}

TEST_F(ChartWidgetTest, CopiesPictureAndRowsTogether) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  ChartData data{"Month", "Percent", {{"Jan", 100.0 / 3}, {"Feb", 0}}};
  QPalette dark;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  chart.setPalette(dark);
  chart.setData(data);
  const auto copied = chart.copy();
  EXPECT_EQ(copied->text(), "Month\tPercent\nJan\t33,3333333333333\nFeb\t0\n");
  const auto picture = copied->imageData().value<QImage>();
  EXPECT_EQ(picture.size(), QSize(1000, 640));
  EXPECT_EQ(picture.pixelColor(1, 1), Qt::white);
  EXPECT_EQ(chart.grab().toImage().pixelColor(1, 1), Qt::black);
  EXPECT_EQ(chart.spokenValue(), "Percent / Month. Jan: 33,3333333333333; Feb: 0");
}

}  // namespace
}  // namespace nautrel
