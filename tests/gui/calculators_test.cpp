// SPDX-License-Identifier: GPL-2.0-or-later
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include "calculators/Form21.h"
#include "calculators/Form22.h"
#include "evaluation/Form6.h"
#include "gui/gui_test.h"
#include "look/bindings/spoken.h"
#include "look/pictures/scene_view.h"

namespace nautrel {
namespace {

class Calculators : public GuiTest {
 protected:
  Form21& units() { return open(&MDIForm1::Menü7a, &Nautrel::Form21); }
  Form22& air() { return open(&MDIForm1::Menü7c, &Nautrel::Form22); }
  QLineEdit& edit(const Control& box) { return widget<QLineEdit>(box); }
};

TEST_F(Calculators, FillThePageUnderTheKeysAndShowTheHeadOfANumberThatIsTooLong) {
  auto& form = units();
  mouse(form.Text3);
  keys("18");
  EXPECT_EQ(edit(form.Text4).text(), "59.040000000");
  EXPECT_EQ(edit(form.Text3).cursorPosition(), 2);
  key(Qt::Key_Backspace);
  EXPECT_EQ(edit(form.Text4).text(), "3.280000000");
  mouse(form.Text8);
  edit(form.Text8).selectAll();
  keys("1234567890123456789012345");
  EXPECT_GT(form.Text1.text().size(), 30U);
  EXPECT_EQ(edit(form.Text1).cursorPosition(), 0);
  EXPECT_EQ(edit(form.Text8).cursorPosition(), 25);
}

TEST_F(Calculators, SelectTheTextOfTheBoxThatIsClicked) {
  auto& form = air();
  mouse(form.Text1);
  EXPECT_EQ(edit(form.Text1).selectedText(), "0");
  keys("33");
  mouse(form.Text2);
  keys("7");
  mouse(form.Text1);
  EXPECT_EQ(edit(form.Text1).selectedText(), "33");
  mouse(form.Text1);
  EXPECT_EQ(edit(form.Text1).selectedText(), "");
  keys("0");
  key(Qt::Key_Return);
  EXPECT_EQ(form.Label9.caption(), "17.3 psi");
}

/// The colours of a picture, given in twips, at the dots where they are told to be.
QColor colorAt(QWidget& view, const Figure& frame, double left, double top) {
  const auto image = view.grab().toImage();
  return image.pixelColor(static_cast<int>((left - frame.left) / frame.width * image.width()),
                          static_cast<int>((top - frame.top) / frame.height * image.height()));
}

TEST_F(Calculators, PaintTheAirAsHighAsItStands) {
  auto& form = air();
  const auto water = toQt(Form22::kWater);
  const auto air = toQt(Form22::kAir);
  mouse(form.Text2);
  keys("33");
  mouse(form.Command3);
  auto& view = widget(form.Shape2);
  const auto frame = form.Shape2.figure();
  EXPECT_EQ(colorAt(view, frame, 2160, 1500), air);
  EXPECT_EQ(colorAt(view, frame, 2160, 2170), air);
  EXPECT_EQ(colorAt(view, frame, 2160, 2270), water);
  EXPECT_EQ(dynamic_cast<Spoken&>(view).spokenValue(), "0 ft, 33 ft");
  form.Shape4.setHeight(1e30);
  settle();
  EXPECT_EQ(colorAt(view, frame, 2160, 2850), air);
  form.Shape4.setHeight(-1e30);
  settle();
  EXPECT_EQ(colorAt(view, frame, 2160, 2000), water);
  EXPECT_EQ(colorAt(view, frame, 2160, 1700), water);
}

TEST_F(GuiTest, AFigureTooLongForItsLabelIsElidedAndToldWholeInAToolTip) {
  add({{"Nr", "1"}, {"Zeit", "9E99"}, {"Tiefe", "9E99"}});
  auto& form = open(&MDIForm1::Menü7c, &Nautrel::Form22);
  const auto size = window(form)->size();
  const auto told = [&](Label& figure) {
    auto& label = widget<QLabel>(figure);
    EXPECT_TRUE(label.parentWidget()->rect().contains(label.geometry()));
    QHelpEvent help(QEvent::ToolTip, {2, 2}, label.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&label, &help);
    return fromQt(QToolTip::isVisible() ? QToolTip::text() : QString());
  };
  click(form.Command1);
  settle();
  EXPECT_EQ(told(form.Label11), "") << form.Label11.caption();
  form.Text1.setText("9E9");
  form.Text3.setText("9E9");
  click(form.Command1);
  settle();
  EXPECT_EQ(window(form)->size(), size);
  EXPECT_EQ(told(form.Label11), form.Label11.caption());
  click(app->MDIForm1().Menü4a);
  settle();
  for (auto* figure : {&app->Form6().Label8, &app->Form6().Label9, &app->Form6().Label14})
    EXPECT_EQ(told(*figure), figure->caption());
}

TEST(Scene, ATextTooLongForItsPlaceIsToldWholeInAToolTip) {
  SceneView scene;
  scene.resize(200, 100);
  scene.setFrame({0, 0, 3000, 1500});
  Figure note{.kind = Figure::Kind::Text, .left = 0, .top = 0, .width = 1500, .height = 300};
  for (const bool fits : {true, false}) {
    note.text = fits ? "33 ft" : "Depth: 123456789012345678901234567890 ft";
    scene.setFigures({note});
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, {2, 2}, {2, 2});
    QApplication::sendEvent(&scene, &help);
    EXPECT_EQ(fromQt(QToolTip::text()), fits ? "" : note.text);
  }
  QToolTip::hideText();
}

}  // namespace
}  // namespace nautrel
