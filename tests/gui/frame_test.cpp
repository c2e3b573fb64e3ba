// SPDX-License-Identifier: GPL-2.0-or-later
#include <QMdiSubWindow>
#include <QScreen>

#include "dives/Form3.h"
#include "dives/Form4.h"
#include "gui/gui_test.h"

namespace nautrel {
namespace {

class FrameLook : public GuiTest {
 protected:
  void startFree(int width, int height) {
    desktop->settings = {{{"Start", "Fenster"}, "Ben"},
                         {{"Start", "Breite"}, std::to_string(width * 15)},
                         {{"Start", "Höhe"}, std::to_string(height * 15)},
                         {{"Start", "Links"}, "150"},
                         {{"Start", "Oben"}, "150"}};
    start();
  }
  QMainWindow& frame() { return looks->mainFrame()->window(); }
  const QWidget& ground() { return *looks->mainFrame()->area().viewport(); }
};

TEST_F(FrameLook, TheFreeSizeIsThatOfWindowAndFrameAndTheFirstResizeIsKept) {
  startFree(640, 480);
  EXPECT_EQ(frame().frameGeometry(), QRect(10, 10, 640, 480));
  EXPECT_EQ(app->MDIForm1().Width(), 640 * 15);
  EXPECT_EQ(app->MDIForm1().Left(), 150);
  frame().resize(700, 500);
  settle();
  EXPECT_EQ(frame().size(), QSize(700, 500));
  EXPECT_EQ(app->MDIForm1().Width(), toTwips(frame().frameGeometry().width()));
}

TEST_F(FrameLook, RestoredFromItsMaximumItHoldsEveryChild) {
  start();
  const auto screen = frame().screen()->availableGeometry().size();
  EXPECT_TRUE(frame().isMaximized());
  frame().showNormal();
  settle();
  EXPECT_EQ(frame().frameGeometry().size(), QSize(1024, 768).boundedTo(screen));
}

TEST_F(FrameLook, AWindowOfTheStartHasFocusAndPlaceAsFromItsCommand) {
  addDives(1, 3);
  desktop->settings[{"Start", "Window"}] = "Edit dive";
  start();
  expectFocus(app->Form4().Text2);
  const auto place = window(app->Form4())->geometry();
  key(Qt::Key_Escape);
  click(app->MDIForm1().Menü2b);
  settle();
  EXPECT_EQ(window(app->Form4())->geometry(), place);
}

TEST_F(FrameLook, OnASmallAreaEveryTitleBarIsInSightAndWhatCanShrinkDoes) {
  addDives(1, 3);
  startFree(640, 480);
  forEveryWindow([&](Form& form) {
    const auto shown = window(form)->geometry();
    EXPECT_GE(shown.left(), 0) << form.name();
    EXPECT_GE(shown.top(), 0) << form.name();
    EXPECT_EQ(toPixels(form.Left()), shown.left()) << form.name();
    for (const char* shrinks : {"Form10", "Form11", "Form13"})
      if (form.name() == shrinks) {
        EXPECT_TRUE(ground().rect().contains(shown))
            << form.name() << ' ' << shown.width() << ' ' << shown.height();
      }
  });
}

TEST_F(FrameLook, FontAndColoursThatChangeWhileWindowsAreOpenAreFollowed) {
  addDives(1, 3);
  auto& form = open(&MDIForm1::Menü3a, &Nautrel::Form3);
  const auto font = QApplication::font();
  const auto palette = QApplication::palette();
  const auto size = window(form)->size();
  auto larger = font;
  larger.setPointSizeF(font.pointSizeF() * 1.5);
  auto dark = palette;
  dark.setColor(QPalette::Window, QColor(40, 40, 40));
  QApplication::setFont(larger);
  QApplication::setPalette(dark);
  settle();
  EXPECT_GT(window(form)->width(), size.width());
  EXPECT_EQ(form.Width(), toTwips(window(form)->width()));
  EXPECT_EQ(widget(form.Text1).palette().color(QPalette::Base), QColor(40, 40, 40));
  QApplication::setFont(font);
  QApplication::setPalette(palette);
  settle();
  EXPECT_EQ(window(form)->size(), size);
}

}  // namespace
}  // namespace nautrel
