// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/form.h"

#include <gtest/gtest.h>

#include "platform/controls.h"
#include "platform/program.h"
#include "support/failure.h"
#include "support/scripted_desktop.h"
#include "support/user.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class Window;

class Scene : public Program {
 public:
  using Program::Program;
  Window& open(int number = 1) { return window<Window>(number, *this); }
  std::function<void(Window&)> onLoad;
  std::function<void(Window&)> onUnload;
};

/// Two boxes and a button on the first page, one box on the second; it notes its focus events.
class Window : public Form {
 public:
  explicit Window(Scene& run) : Form(run, "Window", {.caption = "Window"}), run_(run) {
    Pages.pageHolds(0, {&First, &Second, &Press, &Red, &Green, &Check});
    Pages.pageHolds(1, {&Behind});
    Stop.setCancel();
    Stop.Click = [this] { log.push_back("stop"); };
    Press.Click = [this] { log.push_back("press"); };
    for (auto* control : controls()) {
      control->GotFocus = [this, control] { log.push_back("+" + control->name()); };
      control->LostFocus = [this, control] {
        log.push_back("-" + control->name());
        if (const auto it = rules.find(control); it != rules.end()) it->second();
      };
    }
    for (auto* option : {&Red, &Green})
      option->Click = [this, option] { log.push_back("click " + option->name()); };
    for (auto* box : {&First, &Second})
      box->Change = [this, box] { log.push_back("change " + box->text()); };
  }

  void Form_Load() override {
    if (run_.onLoad) run_.onLoad(*this);
  }
  void Form_Unload() override {
    if (run_.onUnload) run_.onUnload(*this);
  }

  TextBox First{*this, "First", {.maxLength = 4}};
  TextBox Second{*this, "Second"};
  Button Press{*this, "Press", "&Press"};
  OptionButton Red{*this, "Red", "&Red or &pink"};
  OptionButton Green{*this, "Green"};
  CheckBox Check{*this, "Check"};
  TextBox Behind{*this, "Behind"};
  TextBox Notes{*this, "Notes", {.multiLine = true}};
  ComboBox Term{*this, "Term", ComboBox::Style::FreeText};
  TabStrip Pages{*this, "Pages", {"Front", "Back", "Last"}};
  Button Stop{*this, "Stop", "Stop"};
  ListBox Lines{*this, "Lines"};
  ComboBox Choice{*this, "Choice", ComboBox::Style::ListOnly, {"a", "b"}};

  Texts log;
  std::map<const Control*, std::function<void()>> rules;
  Texts taken() { return std::exchange(log, {}); }

 private:
  Scene& run_;
};

class FormTest : public ::testing::Test {
 protected:
  Window& shown(int number = 1) {
    auto& window = run.open(number);
    window.Show();
    window.log.clear();
    return window;
  }
  ScriptedDesktop desktop{"/somewhere"};
  Scene run{desktop};
};

TEST_F(FormTest, TheFocusMovesByLostFocusGotFocusClick) {
  auto& window = run.open();
  EXPECT_EQ(window.activeControl(), nullptr);
  EXPECT_EQ(failureOf([&] { window.First.SetFocus(); }), InvalidCall) << "not shown yet";
  window.Show();
  window.Show();
  EXPECT_EQ(window.taken(), Texts{"+First"});
  click(window.Press);
  EXPECT_EQ(window.taken(), (Texts{"-First", "+Press", "press"}));
  press(window, Key::Tab);
  press(window, Key::BackTab);
  EXPECT_EQ(window.taken(), (Texts{"-Press", "+Red", "-Red", "+Press"}));
  press(window, Key::Enter);
  EXPECT_EQ(window.taken(), Texts{"press"});
}

TEST_F(FormTest, ARuleMayKeepTheFocusOrSendItElsewhere) {
  auto& window = shown();
  window.rules[&window.First] = [&] { window.First.SetFocus(); };
  window.rules[&window.Second] = [&] { window.Second.SetFocus(); };
  click(window.Press);
  EXPECT_EQ(window.taken(), (Texts{"-First", "+First"})) << "the click is swallowed";
  focus(window.Second);
  EXPECT_EQ(window.activeControl(), &window.First) << "two such rules do not chase each other";
  window.taken();
  window.rules[&window.First] = [&] { window.Check.SetFocus(); };
  focus(window.Second);
  EXPECT_EQ(window.taken(), (Texts{"-First", "+Check"}));
}

TEST_F(FormTest, WhatIsDisabledHiddenOrOnAPageBehindTakesNoFocusAndEscWorksFromEveryPage) {
  auto& window = shown();
  window.Behind.SetFocus();
  EXPECT_EQ(window.activeControl(), &window.First);
  EXPECT_EQ(window.Pages.Tab(), 0);
  window.First.setEnabled(false);
  EXPECT_EQ(window.activeControl(), &window.Second);
  window.Second.setVisible(false);
  EXPECT_EQ(window.activeControl(), &window.Press);
  for (auto* control : {&window.First, &window.Second})
    EXPECT_EQ(failureOf([&] { control->SetFocus(); }), InvalidCall);
  choose(window.Pages, 1);
  type(window.Behind, "x");
  EXPECT_EQ(window.Behind.text(), "x");
  window.taken();
  press(window, Key::Escape);
  EXPECT_EQ(window.taken(), Texts{"stop"}) << "the focus stays where it is";
}

TEST_F(FormTest, ABoxCutsWhatDoesNotFitAndTellsRealChangesOnly) {
  auto& window = shown();
  window.First.setText("äöüßx");
  window.First.setText("äöüß");
  EXPECT_EQ(window.taken(), Texts{"change äöüß"});
  window.First.userSelect(1, 2);
  typeOn(window, "ab");
  EXPECT_EQ(window.First.text(), "äabß");
  window.First.userSelect(1, 1);
  window.First.userInsert("12345");
  EXPECT_EQ(window.First.text(), "ä1bß") << "an insertion is cut, not the tail";
  EXPECT_EQ(desktop.beeps, 1);
  press(window, Key::Backspace);
  EXPECT_EQ(window.First.text(), "äbß");
}

TEST_F(FormTest, WhatIsPastedIntoOneLineHoldsNoBreak) {
  auto& window = shown();
  const std::pair<const char*, const char*> cases[] = {
      {"Red Sea\r\nDahab\r\n\r\n", "Red Sea Dahab"},
      {"a\tb\x01"
       "c\x7F\xC2\x80"
       "d",
       "a b c  d"},
      {"a\u2028b\u2029c\u0085\n", "a b c"},
      {"a\n\rb\t\n", "a  b "},
      {"\r\n\n", ""},
      {"no-break\u00A0blank", "no-break\u00A0blank"}};
  for (const auto& [pasted, kept] : cases) {
    window.Second.setText("");
    paste(window.Second, pasted);
    EXPECT_EQ(window.Second.text(), kept) << pasted;
    window.Term.setText("");
    focus(window.Term);
    window.userType(pasted);
    EXPECT_EQ(window.Term.text(), kept) << pasted;
    window.Notes.setText("");
    paste(window.Notes, pasted);
    EXPECT_EQ(window.Notes.text(), pasted);
  }
  paste(window.First, "a\r\nbcdef\n");
  EXPECT_EQ(window.First.text(), "a bc");
  window.Second.setText("from\telsewhere\n");
  paste(window.Second, "!\n");
  EXPECT_EQ(window.Second.text(), "from\telsewhere\n!");
}

TEST_F(FormTest, OptionsOfAContainerAreExclusiveAndClickOnlyWhenTheyGoOn) {
  auto& window = shown();
  click(window.Red);
  click(window.Red);
  window.Green.setOn(true);
  window.Green.setOn(false);
  EXPECT_FALSE(window.Red.on() || window.Green.on());
  EXPECT_EQ(window.taken(), (Texts{"-First", "+Red", "click Red", "click Green"}));
  bool mouse = false;
  window.Green.MouseUp = [&] { mouse = true; };
  press(window, Key::Down);
  EXPECT_TRUE(window.Green.on());
  EXPECT_FALSE(mouse) << "an arrow key is no mouse";
  press(window, Key::Space);
  EXPECT_TRUE(mouse);
}

TEST_F(FormTest, ListsRefuseWhatIsNotThere) {
  auto& window = shown();
  window.Lines.AddItem("one");
  int clicks = 0;
  window.Lines.Click = [&] { ++clicks; };
  window.Lines.setListIndex(0);
  window.Lines.setListIndex(0);
  EXPECT_EQ(clicks, 1);
  window.taken();
  click(window.Lines, 1);
  doubleClick(window.Lines, -1);
  EXPECT_EQ(window.taken(), Texts{}) << "where no line is, nothing happens, and no focus moves";
  EXPECT_EQ(failureOf([&] { window.Lines.setListIndex(1); }), InvalidPropertyValue);
  EXPECT_EQ(window.Lines.List(7), "");
  EXPECT_EQ(failureOf([&] { window.Choice.setText("c"); }), TextIsReadOnly);
  window.Choice.setText("b");
  EXPECT_EQ(window.Choice.ListIndex(), 1);
}

TEST_F(FormTest, AnUnloadedWindowForgetsAndTheNextOneIsNew) {
  run.handle([&] {
    auto& window = shown();
    window.First.setText("kept");
    window.Unload();
    EXPECT_FALSE(run.loaded(1));
    EXPECT_EQ(window.First.text(), "kept") << "its object lives as long as the handler";
    window.Unload();
    EXPECT_EQ(run.open().First.text(), "");
  });
  run.onLoad = [](Window& window) { window.Unload(); };
  run.handle([&] { run.open(2).Show(); });
  EXPECT_FALSE(run.loaded(2));
  EXPECT_EQ(run.activeForm(), nullptr);
}

TEST_F(FormTest, LoadAndUnloadAreRootsAndAfterTheFatalEndNothingRunsOn) {
  run.onUnload = [](Window&) { raise(TypeMismatch); };
  auto& window = shown();
  bool wentOn = false;
  window.Press.Click = [&] {
    resumeNext([&] { run.unload(1); });
    wentOn = true;
  };
  click(window.Press);
  EXPECT_FALSE(wentOn);
  EXPECT_EQ(desktop.failure()->number, TypeMismatch);
  window.taken();
  type(window.Second, "x");
  EXPECT_EQ(window.taken(), Texts{});
}

TEST_F(FormTest, AFatalEndUnderABoxEndsWhatAskedToo) {
  auto& window = shown();
  bool wroteOn = false;
  desktop.whileBoxIsOpen = [&] { run.handle([] { raise(Overflow); }); };
  window.Press.Click = [&] {
    resumeNext([&] { desktop.MsgBox("a box"); });
    wroteOn = true;
  };
  click(window.Press);
  EXPECT_FALSE(wroteOn);
  EXPECT_EQ(desktop.failure()->number, Overflow);
}

TEST_F(FormTest, ChangingTheWindowRaisesNoFocusEventAndADisabledOneTakesNoInput) {
  auto& one = shown(1);
  auto& two = shown(2);
  EXPECT_EQ(run.activeForm(), &two);
  one.Second.SetFocus();
  EXPECT_EQ(run.activeForm(), &one);
  EXPECT_EQ(two.taken(), Texts{});
  one.setEnabled(false);
  one.taken();
  type(one.Second, "x");
  click(one.Check);
  press(one, Key::Escape);
  EXPECT_EQ(one.taken(), Texts{});
  EXPECT_EQ(one.Second.text(), "");
  EXPECT_FALSE(one.Check.on());
}

TEST_F(FormTest, ATitleBarThatCodeWouldPutOutOfTheAreaStandsAtItsEdge) {
  auto& window = shown();
  const auto reads = [&](double assigned) {
    window.setLeft(assigned);
    window.setTop(assigned);
    return std::pair{window.Left(), window.Top()};
  };
  EXPECT_EQ(reads(-1), (std::pair{0., 0.}));
  EXPECT_EQ(reads(7000), (std::pair{7000., 7000.})) << "nobody has told how much room there is";
  run.setArea({9000, 6000});
  EXPECT_EQ(reads(7000), (std::pair{7000., 0.}));
  EXPECT_EQ(reads(9000), (std::pair{0., 0.}));
  window.userResized(-30, 8000, window.Width(), window.Height());
  EXPECT_EQ((std::pair{window.Left(), window.Top()}), (std::pair{-30., 8000.}))
      << "the user may put it where he likes";
}

TEST_F(FormTest, WhoGoesMakesRoomForTheWindowBehindWithTheFocusWhereItWasLeft) {
  auto& one = shown(1);
  auto& two = shown(2);
  auto& three = shown(3);
  two.SetFocus();
  focus(two.Second);
  three.SetFocus();
  close(three);
  EXPECT_EQ(run.activeForm(), &two);
  two.userState(WindowState::Minimized);
  EXPECT_EQ(run.activeForm(), &one);
  two.taken();
  two.setWindowState(WindowState::Normal);
  EXPECT_EQ(run.activeForm(), &two);
  EXPECT_EQ(two.activeControl(), &two.Second);
  EXPECT_EQ(two.taken(), Texts{});
  two.userState(WindowState::Minimized);
  run.userCloseWindow();
  EXPECT_FALSE(run.loaded(1));
  EXPECT_EQ(run.activeForm(), &two) << "it is the only one left";
  run.userCloseWindow();
  EXPECT_EQ(run.activeForm(), nullptr);
}

TEST_F(FormTest, TheNextWindowIsTheNextThatIsNotMinimized) {
  for (int number = 1; number <= 4; ++number) shown(number);
  run.ifLoaded(3)->userState(WindowState::Minimized);
  std::vector<Form*> round;
  for (const int direction : {1, 1, 1, -1, -1}) {
    run.userNextWindow(direction);
    round.push_back(run.activeForm());
  }
  const auto number = [&](int n) { return run.ifLoaded(n); };
  EXPECT_EQ(round, (std::vector<Form*>{number(1), number(2), number(4), number(2), number(1)}));
}

TEST_F(FormTest, AnAccessKeyWithSeveralOwnersGoesOnFromTheFocus) {
  auto& window = shown();
  for (const char* key : {"p", "P", "p"}) EXPECT_TRUE(window.userAccessKey(key));
  EXPECT_EQ(window.activeControl(), &window.Press);
  EXPECT_EQ(window.taken(), (Texts{"-First", "+Press", "press", "-Press", "+Red", "click Red",
                                   "-Red", "+Press", "press"}));
  EXPECT_FALSE(window.userAccessKey("x"));
  window.userTurnPage(-1);
  EXPECT_EQ(window.Pages.Tab(), 2);
  EXPECT_FALSE(window.userAccessKey("p")) << "a page behind answers nothing";
  window.userTurnPage(1);
  EXPECT_EQ(window.Pages.Tab(), 0);
}

/// A look that fails when it is to follow.
class BrokenLooks : public Looks {
 public:
  std::unique_ptr<FormLook> make(Form&) override { return {}; }
  void flush() override { throw std::logic_error("no screen"); }
};

TEST(Edge, WhateverFliesOutOfAnActionOrOfTheScreenEndsTheProgramThere) {
  const std::tuple<int, std::string, std::function<void()>> cases[] = {
      {13, "Type mismatch", [] { raise(TypeMismatch); }},
      {7, "Out of memory", [] { throw std::bad_alloc(); }},
      {51, "Internal error: lost", [] { throw std::logic_error("lost"); }},
      {51, "Internal error", [] { throw 1; }},
      {51, "Internal error: no screen", {}}};
  for (const auto& [number, text, fault] : cases) {
    ScriptedDesktop desktop({});
    BrokenLooks looks;
    Scene scene(desktop);
    auto& window = scene.open();
    window.Press.Click = [&, fault = fault] {
      fault ? resumeNext([&] { scene.handle(fault); }) : scene.setLooks(&looks);
    };
    window.Show();
    click(window.Press);
    ASSERT_TRUE(desktop.failure()) << text;
    EXPECT_EQ(desktop.failure()->number, number);
    EXPECT_EQ(desktop.failure()->text, text);
    EXPECT_FALSE(scene.handling());
  }
}

}  // namespace
}  // namespace nautrel
