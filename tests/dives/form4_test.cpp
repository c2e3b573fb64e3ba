#include "dives/Form4.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

const Columns kFlags{"Salz",   "Süß",    "Ufer",   "Boot", "Alu", "Stahl",
                     "Sichtg", "Sichtm", "Sichts", "Deco", "Rep"};
const Columns kTexts{"Nr",     "Land",  "Ort",   "Platz", "Tag",   "Monat", "Jahr",
                     "Zeit",   "Tiefe", "Buddy", "Lang",  "Liter", "Bars",  "Bare",
                     "Wetter", "Anzug", "Höhe",  "Blei",  "Grafik"};

class EditDives : public LogbookTest {
 protected:
  Form4& open() {
    start();
    desktop->messages();
    click(app->MDIForm1().Menü2b);
    return app->Form4();
  }
  /// Goes to the dive as another window does.
  static void goTo(Form4& form, int row) { form.Data1.Recordset().Move(row); }
};

Dive fullDive() {
  auto dive = someDive(1);
  for (const auto& name : {"Buddy", "Lang", "Wetter", "Anzug"})
    dive[name] = std::string("my ") + name;
  dive["Liter"] = "80";
  dive["Bars"] = "3000";
  dive["Bare"] = "500";
  dive["Höhe"] = "0";
  dive["Blei"] = "12";
  dive["Grafik"] = "gone.jpg";
  for (const auto* flag : {"Süß", "Boot", "Stahl", "Sichtm", "Deco"}) dive[flag] = true;
  return dive;
}

TEST_F(EditDives, OpensOnTheFirstDiveWithItsTextSelected) {
  addDives(5, 7);
  auto& form = open();
  EXPECT_EQ(form.caption(), "Edit dives - Number 5");
  EXPECT_EQ(form.activeControl(), &form.Text2);
  typeOn(form, "Malta");
  EXPECT_EQ(form.Text2.text(), "Malta");
  type(form.Text4, "Blue Hole");
  EXPECT_EQ(form.Text4.text(), "Blue Hole");
  choose(form.SSTab1, 1);
  type(form.Text11, "a");
  focus(form.Command4);
  type(form.Text11, "b");
  press(form, Key::Enter);
  EXPECT_EQ(form.Text11.text(), "b\n");
  EXPECT_EQ(form.Text20.text(), "");
}

TEST_F(EditDives, SavingAnUntouchedDiveWritesWhatWasThere) {
  add(fullDive());
  addDives(2, 2);
  auto& form = open();
  const auto texts = rows("Logbuch", kTexts);
  const auto flags = rows("Logbuch", kFlags);
  click(form.Command1);
  EXPECT_EQ(form.caption(), "Edit dives - Number 2");
  EXPECT_FALSE(form.Option2.on() || form.Check6.on());
  EXPECT_EQ(rows("Logbuch", kTexts), texts);
  EXPECT_EQ(rows("Logbuch", kFlags), flags);
}

TEST_F(EditDives, EveryBoxAndFlagReachesItsColumn) {
  add(fullDive());
  auto& form = open();
  type(form.Text2, "Egypt");
  type(form.Text3, "Dahab");
  type(form.Text4, "Canyon");
  type(form.Text5, "31");
  type(form.Text6, "12");
  type(form.Text7, "1999");
  type(form.Text8, "Anna");
  type(form.Text9, "61");
  type(form.Text10, "99.5");
  choose(form.SSTab1, 1);
  type(form.Text11, "Hai");
  choose(form.SSTab1, 2);
  for (auto* option : {&form.Option1, &form.Option3, &form.Option5, &form.Option9}) click(*option);
  click(form.Check6);
  click(form.Check7);
  type(form.Text17, "100");
  type(form.Text13, "2900");
  type(form.Text18, "700");
  type(form.Text14, "rain");
  type(form.Text15, "dry");
  type(form.Text16, "300 ft");
  type(form.Text19, "9");
  choose(form.SSTab1, 3);
  const auto longPath = std::string(300, 'x');
  paste(form.Text21, longPath);
  click(form.Command2);
  EXPECT_FALSE(app->loaded(4));
  EXPECT_EQ(rows("Logbuch", kTexts),
            (std::vector<Texts>{{"1", "Egypt", "Dahab", "Canyon", "31", "12", "1999", "61", "99.5",
                                 "Anna", "Hai", "100", "2900", "700", "rain", "dry", "300 ft", "9",
                                 longPath}}));
  EXPECT_EQ(rows("Logbuch", kFlags), (std::vector<Texts>{{"Yes", "No", "Yes", "No", "Yes", "No",
                                                          "No", "No", "Yes", "No", "Yes"}}));
}

TEST_F(EditDives, AClearedOptionIsNoInTheRow) {
  add(fullDive());
  auto& form = open();
  choose(form.SSTab1, 2);
  doubleClick(form.Option2);
  click(form.Command1);
  EXPECT_EQ(rows("Logbuch", {"Salz", "Süß"}), (std::vector<Texts>{{"No", "No"}}));
}

TEST_F(EditDives, ARowOfAnotherToolShowsThroughTheRulesOfTheBoxes) {
  auto odd = someDive(1);
  odd["Zeit"] = "007";
  odd["Tiefe"] = "deep";
  odd["Land"] = Value::null();
  odd["Tag"] = "3";
  add(odd);
  auto& form = open();
  EXPECT_EQ((Texts{form.Text2.text(), form.Text3.text(), form.Text5.text(), form.Text9.text(),
                   form.Text10.text(), form.Text8.text()}),
            (Texts{"", "Ort 1", "3", "7", "", ""}));
  EXPECT_EQ(rows("Logbuch", {"Land", "Zeit", "Tiefe"}),
            (std::vector<Texts>{{"NULL", "007", "deep"}}));
  type(form.Text10, "30");
  click(form.Command2);
  EXPECT_EQ(rows("Logbuch", {"Land", "Buddy", "Zeit", "Tiefe", "Tag"}),
            (std::vector<Texts>{{"", "", "7", "30", "3"}}));
}

TEST_F(EditDives, AMoveThrowsAwayWhatWasTypedWithoutAQuestion) {
  addDives(1, 3);
  auto& form = open();
  type(form.Text2, "Egypt");
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(form.Text2.text(), "Land 2");
  EXPECT_EQ(form.caption(), "Edit dives - Number 2");
  press(form.Data1, Navigator::Arrow::Previous);
  EXPECT_EQ(form.Text2.text(), "Land 1");
  type(form.Text2, "Egypt");
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(4));
  EXPECT_EQ(column("Land"), (Texts{"Land 1", "Land 2", "Land 3"}));
}

TEST_F(EditDives, SavingWalksOnAndStaysOnTheLastDive) {
  addDives(9, 10);
  auto& form = open();
  typeOn(form, "Malta");
  press(form, Key::Enter);
  EXPECT_EQ(form.Text1.text(), "10");
  EXPECT_EQ(form.activeControl(), &form.Text2);
  typeOn(form, "Gozo");
  press(form, Key::Enter);
  EXPECT_EQ(form.Text1.text(), "10");
  EXPECT_EQ(form.Text2.text(), "Gozo");
  EXPECT_EQ(rows("Logbuch", {"Nr", "Land"}), (std::vector<Texts>{{"9", "Malta"}, {"10", "Gozo"}}));
}

TEST_F(EditDives, AnEmptyRequiredBoxKeepsTheWindowAndTheRow) {
  addDives(1, 2);
  auto& form = open();
  clear(form.Text10);
  for (auto* button : {&form.Command1, &form.Command2}) {
    click(*button);
    EXPECT_EQ(desktop->texts(), Texts{"Depth - could not be empty!"});
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(form.caption(), "Edit dives - Number 1");
  }
  EXPECT_EQ(column("Tiefe"), (Texts{"60", "60"}));
  type(form.Text10, "20");
  click(form.Command2);
  EXPECT_FALSE(app->loaded(4));
  EXPECT_EQ(column("Tiefe"), (Texts{"20", "60"}));
}

struct JumpCase {
  const char* answer;
  const char* arrives;
  bool atTheCountry;  // where the focus is afterwards
};

class EditJump : public EditDives, public ::testing::WithParamInterface<JumpCase> {};

TEST_P(EditJump, GoesByTheDifferenceOfNumbers) {
  addDives(11, 15);
  auto& form = open();
  goTo(form, 2);
  desktop->answerInput(GetParam().answer);
  click(form.Command4);
  EXPECT_EQ(desktop->inputPrompts,
            Texts{"Jump to dive-#: Please enter a dive number between 11 and 15!"});
  EXPECT_EQ(form.Text1.text(), GetParam().arrives);
  EXPECT_EQ(form.activeControl() == &form.Text2, GetParam().atTheCountry);
  EXPECT_EQ(desktop->texts(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Answers, EditJump,
                         ::testing::Values(JumpCase{"12", "12", true}, JumpCase{"15", "15", true},
                                           JumpCase{" 15 ", "15", true}, JumpCase{"11", "11", true},
                                           JumpCase{"0", "13", true}, JumpCase{"16", "13", true},
                                           JumpCase{"abc", "13", false},
                                           JumpCase{"", "13", false}));

TEST_F(EditDives, TheLinkedPictureComesAndGoesWithItsDive) {
  auto linked = someDive(1);
  linked["Grafik"] = folder.write("reef.jpg", "picture");
  add(linked);
  auto gone = someDive(2);
  gone["Grafik"] = "gone.jpg";
  add(gone);
  auto& form = open();
  EXPECT_EQ(pathOf(form.Image4.picture()), folder.file("reef.jpg"));
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(pathOf(form.Image4.picture()), "");
  EXPECT_EQ(form.Text21.text(), "gone.jpg");
  click(form.Command1);
  EXPECT_EQ(column("Grafik").back(), "gone.jpg");
}

TEST_F(EditDives, ARowThatAnotherProgramDeletedEndsTheProgramAndNothingElse) {
  addDives(1, 3);
  auto& form = open();
  press(form.Data1, Navigator::Arrow::Next);
  {
    Workspace other;
    auto dives = other.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset("Logbuch");
    dives.MoveNext();
    dives.Delete();
  }
  type(form.Text2, "Egypt");
  click(form.Command1);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, RecordDeleted);
  EXPECT_EQ(rows("Logbuch", {"Nr", "Land"}),
            (std::vector<Texts>{{"1", "Land 1"}, {"3", "Land 3"}}));
}

}  // namespace
}  // namespace nautrel
