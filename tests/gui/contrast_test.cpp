// SPDX-License-Identifier: GPL-2.0-or-later
// How far what is written and drawn stands apart from its ground, by the dots of the screen.
#include "look/contrast.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>
#include <algorithm>
#include <cstdio>

#include "dives/Form3.h"
#include "gui/gui_test.h"
#include "look/bindings/navigator_bar.h"
#include "look/bindings/spin_arrows.h"

namespace nautrel {
namespace {

/// The best contrast that anything in the picture has to the colour that there is most of.
double contrastIn(const QImage& picture) {
  std::map<QRgb, int> dots;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ++dots[picture.pixel(x, y)];
  const auto most = [](const auto& one, const auto& other) { return one.second < other.second; };
  const QColor ground(std::max_element(dots.begin(), dots.end(), most)->first);
  double best = 1;
  for (const auto& [dot, count] : dots) best = std::max(best, contrast(QColor(dot), ground));
  return best;
}

QPalette scheme(QColor window, QColor base, QColor text, QColor highlight, QColor highlighted) {
  QPalette palette(text, window, window.lighter(150), window.darker(150), window.darker(120), text,
                   Qt::white, base, window);
  palette.setColor(QPalette::AlternateBase, base);
  palette.setColor(QPalette::Highlight, highlight);
  palette.setColor(QPalette::HighlightedText, highlighted);
  return palette;
}

class Contrast : public GuiTest {
 protected:
  ~Contrast() override { QApplication::setPalette(before_); }

  /// As a desktop gives its colours: the style has its say about them.
  void wear(QPalette palette) {
    QApplication::style()->polish(palette);
    QApplication::setPalette(palette);
    settle();
  }
  void measure(const char* kind, const QImage& picture, const std::string& where) {
    const double seen = contrastIn(picture);
    auto [worst, first] = worst_.try_emplace(kind, seen, where);
    if (!first && seen < worst->second.first) worst->second = {seen, where};
  }
  static const char* kindOf(const QWidget& part) {
    if (isOneOf<NavigatorBar>(*part.parentWidget())) return "arrow of the navigator";
    if (isOneOf<SpinArrows>(*part.parentWidget())) return "arrow of a number";
    const auto text = part.property("text").toString();
    if (isOneOf<QLabel>(part) && !text.isEmpty()) return "label";
    if (isOneOf<QLineEdit>(part) && !text.isEmpty()) return "box";
    if (isOneOf<QAbstractButton>(part) && !text.isEmpty()) return "button, option, check box";
    return isOneOf<QTabBar>(part) ? "page tab" : nullptr;
  }
  void measure(const Form& form) {
    for (auto* part : window(form)->findChildren<QWidget*>()) {
      if (!part->isVisible() || !part->isEnabled() || part->visibleRegion().isEmpty()) continue;
      const auto* kind = kindOf(*part);
      const auto where = form.name() + "." + fromQt(part->objectName());
      // With the ground that it stands on.
      const QRect place(part->mapTo(window(form), QPoint()), part->size());
      if (kind != nullptr) measure(kind, window(form)->grab(place).toImage(), where);
      if (const auto* view = qobject_cast<QAbstractItemView*>(part))
        if (const auto line = view->currentIndex(); line.isValid())
          measure("selected line", view->viewport()->grab(view->visualRect(line)).toImage(), where);
    }
  }
  void measureFrame() {
    auto& bar = *looks->mainFrame()->window().findChild<QToolBar*>();
    for (auto* action : bar.actions())
      if (auto* button = bar.widgetForAction(action); action->isEnabled() && !action->isSeparator())
        measure("icon of the toolbar", button->grab().toImage(), fromQt(action->text()));
  }

  std::map<std::string, std::pair<double, std::string>> worst_;

 private:
  const QPalette before_ = QApplication::palette();
};

TEST_F(Contrast, IsEnoughForEveryTextAndSignInEveryScheme) {
  addDives(1, 3);
  start();
  const std::pair<const char*, QPalette> schemes[] = {
      {"light", QApplication::style()->standardPalette()},
      {"dark", scheme("#323232", "#242424", "#f0f0f0", "#308cc6", Qt::white)},
      {"high contrast", scheme(Qt::black, Qt::black, Qt::white, Qt::yellow, Qt::black)}};
  for (const auto& [name, palette] : schemes) {
    wear(palette);
    worst_.clear();
    measureFrame();
    forEveryWindow([&](Form& form) { measure(form); });
    for (const auto& [kind, found] : worst_) {
      const bool sign = kind.starts_with("arrow") || kind.starts_with("icon");
      std::printf("%-14s %-26s %5.2f  %s\n", name, kind.c_str(), found.first, found.second.c_str());
      EXPECT_GE(found.first, sign ? kSeen : kReadable)
          << name << ", " << kind << ": " << found.second;
    }
    EXPECT_EQ(worst_.size(), 8U);
  }
}

}  // namespace
}  // namespace nautrel
