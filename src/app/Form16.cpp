// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/Form16.h"

#include "app/MDIForm1.h"
#include "platform/text.h"
#include "shell/Shell.h"
#include "shell/placing.h"

namespace nautrel {
namespace {

/// Takes the last character off the label and appends it to a new text, until it is used up.
void turnRound(Label& label) {
  std::string turned;
  for (auto left = label.caption(); !left.empty();) {
    const auto last = byteOfCharacter(left, characters(left) - 1);
    turned += left.substr(last);
    left.erase(last);
  }
  label.setCaption(turned);
}

/// A bubble and how far it rises between two beats of the timer, in twips.
struct Bubble {
  Shape Form16::*shape;
  double rise;
};
constexpr Bubble kBubbles[] = {{&Form16::Shape1, 24},
                               {&Form16::Shape2, 16},
                               {&Form16::Shape3, 30},
                               {&Form16::Shape4, 20},
                               {&Form16::Shape5, 14}};

}  // namespace

Form16::Form16(Shell& app)
    : Form(app, "Form16", {.caption = "Info", .width = 6000, .height = 4200}), app_(app) {
  Picture1.holds({&Label1, &Label2, &Label3, &Label4, &Label5, &Label6, &Shape1, &Shape2, &Shape3,
                  &Shape4, &Shape5});
  setTabOrder({&Command1});
  Picture1.setTabStop(false);
  Command1.setCancel();
  Picture1.Click = [this] { Picture1_Click(); };
  Command1.Click = [this] { Command1_Click(); };
  Timer1.Fires = [this] { Timer1_Timer(); };
}

void Form16::Form_Load() {
  placeInFrame(*this, app_.MDIForm1());
  Name();
  Zweck();
  Logbuch();
  Bausteine();
  Lizenz();
  Hinweis();
}

void Form16::Name() {
  turnRound(Label1);
}
void Form16::Zweck() {
  turnRound(Label2);
}
void Form16::Logbuch() {
  turnRound(Label3);
}
void Form16::Bausteine() {
  turnRound(Label4);
}
void Form16::Lizenz() {
  turnRound(Label6);
}
void Form16::Hinweis() {
  turnRound(Label5);
}

// A bubble that has left the top begins again below the bottom.
void Form16::Timer1_Timer() {
  for (const auto& [member, rise] : kBubbles) {
    auto& bubble = this->*member;
    const double top = bubble.Top() - rise;
    bubble.setTop(top > -bubble.Size() ? top : Height());
  }
}

void Form16::Picture1_Click() {
  Unload();
}
void Form16::Command1_Click() {
  Unload();
}

}  // namespace nautrel
