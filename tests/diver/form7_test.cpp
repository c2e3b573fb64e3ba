// SPDX-License-Identifier: GPL-2.0-or-later
#include "diver/Form7.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<Texts>;

const Columns kColumns{"Vorname", "Nachname", "Straße", "Plz", "Ort",   "Land",  "Tel",  "Fax",
                       "Email",   "Geb",      "Cerdat", "Org", "Level", "Cernr", "Inst", "Weitere"};
const Texts kCard{"Anna",      "Müller",   "Seestraße 5", "88131-Lindau-am-Bodensee-0",
                  "Lindau",    "Germany",  "08382 1",     "08382 2",
                  "a@b.de",    "1.5.1970", "12/2000",     "Reef Club",
                  "Two stars", "D-77",     "B. Meier",    "Allergic to nothing"};

class PersonalInformation : public LogbookTest {
 protected:
  Form7& open() {
    if (!app->loaded(0)) start();
    click(app->MDIForm1().Menü1b);
    return app->Form7();
  }
  /// The boxes in the order of the columns; null where the organization stands.
  static std::vector<TextBox*> boxes(Form7& form) {
    return {&form.Text1,  &form.Text2,  &form.Text3,  &form.Text4,  &form.Text5,  &form.Text6,
            &form.Text7,  &form.Text8,  &form.Text9,  &form.Text10, &form.Text11, nullptr,
            &form.Text12, &form.Text13, &form.Text14, &form.Text15};
  }
  static Texts shown(Form7& form) {
    Texts texts;
    for (const auto* box : boxes(form))
      texts.push_back(box != nullptr ? box->text() : form.Combo1.text());
    return texts;
  }
  static void fill(Form7& form, const Texts& card) {
    auto text = card.begin();
    for (auto* box : boxes(form)) {
      if (box != nullptr)
        type(*box, *text++);
      else
        type(form.Combo1, *text++);
    }
  }
};

TEST_F(PersonalInformation, TheDeliveredCardIsEmptyAndTakesWhatIsSaved) {
  auto& form = open();
  EXPECT_EQ(form.caption(), "Personal information");
  EXPECT_EQ(shown(form), Texts(16, ""));
  EXPECT_EQ(form.activeControl(), &form.Text1);
  EXPECT_EQ(form.Combo1.lines(), (Texts{"CMAS", "PADI", "PDIC", "SSI", "VDST"}));
  fill(form, kCard);
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), Texts{});
  EXPECT_EQ(rows("Benutzer", kColumns), Rows{kCard});
  EXPECT_EQ(form.caption(), "Personal information for Anna Müller");

  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(7));
  auto& again = open();
  EXPECT_EQ(shown(again), kCard);
  EXPECT_EQ(again.caption(), "Personal information for Anna Müller");
}

TEST_F(PersonalInformation, OneSaveForEachOpening) {
  auto& form = open();
  type(form.Text2, "Meier");
  click(form.Command1);
  EXPECT_FALSE(form.Command1.enabled());
  EXPECT_EQ(form.caption(), "Personal information") << "no first name";
  type(form.Text1, "Anna");
  EXPECT_FALSE(form.Command1.enabled());
  click(form.Command1);
  EXPECT_EQ(rows("Benutzer", {"Vorname", "Nachname"}), (Rows{{"", "Meier"}}));
  close(form);
  EXPECT_EQ(open().Text1.text(), "");
  EXPECT_TRUE(app->Form7().Command1.enabled());
}

TEST_F(PersonalInformation, BoxesTakeWhatTheirColumnsHold) {
  auto& form = open();
  for (auto* box : boxes(form)) {
    if (box == nullptr) continue;
    paste(*box, std::string(300, 'x'));
    const bool isDate = box == &form.Text10 || box == &form.Text11;
    const std::size_t most = box == &form.Text4    ? 300
                             : box == &form.Text15 ? 255
                             : isDate              ? 10
                                                   : 20;
    EXPECT_EQ(box->text().size(), most) << box->name();
  }
}

TEST_F(PersonalInformation, PrintsTheStoredCardOnYesAlone) {
  auto& form = open();
  type(form.Text1, "unsaved");
  desktop->answer(kNo).answer(kYes);
  click(form.Command3);
  EXPECT_TRUE(desktop->reports.empty());
  click(form.Command3);
  const Shown question{"Print now?", 292, "Print personal information"};
  EXPECT_EQ(desktop->messages(), (std::vector<Shown>{question, question}));
  ASSERT_EQ(desktop->reports.size(), 1u);
  EXPECT_EQ(desktop->reports[0].templatePath, folder.file("Benutzer.rpt"));
  EXPECT_EQ(desktop->reports[0].destination, ReportDestination::Printer);
  EXPECT_EQ(desktop->reports[0].selectionFormula, "");
  EXPECT_NE(rows("Benutzer", {"Vorname"}), Rows{{"unsaved"}});
}

}  // namespace
}  // namespace nautrel
