// SPDX-License-Identifier: GPL-2.0-or-later
#include <functional>

#include "store/store_test.h"

namespace nautrel {
namespace {

enum class Opening { Table, Dynaset };

/// What both kinds of recordset promise.
class RecordsetTest : public StoreTest, public testing::WithParamInterface<Opening> {
 protected:
  Recordset open(std::string_view name = Tabelle::Logbuch) {
    return GetParam() == Opening::Table ? table(name) : dynaset(name);
  }
};
INSTANTIATE_TEST_SUITE_P(Both, RecordsetTest, testing::Values(Opening::Table, Opening::Dynaset),
                         [](const auto& kind) {
                           return kind.param == Opening::Table ? "Table" : "Dynaset";
                         });

TEST_P(RecordsetTest, AnEmptySetHasNoPlaceToStandOnAndStaysAtItsEndWithANewRow) {
  auto dives = open();
  EXPECT_EQ(dives.RecordCount(), 0);
  EXPECT_TRUE(dives.Eof());
  EXPECT_EQ(dives.AbsolutePosition(), -1);
  bool moved = false;
  dives.moved = [&] { moved = true; };
  const std::function<void()> actions[] = {[&] { dives.MoveFirst(); }, [&] { dives.MoveLast(); },
                                           [&] { dives.MoveNext(); },  [&] { dives.Move(0); },
                                           [&] { dives.Fields(0); },   [&] { dives.Edit(); },
                                           [&] { dives.Delete(); }};
  for (const auto& action : actions) EXPECT_EQ(failureOf(action), NoCurrentRecord);
  EXPECT_FALSE(moved);
  dives.AddNew();
  dives.setField("Nr", "1");
  dives.Update();
  EXPECT_TRUE(dives.Eof());
  EXPECT_EQ(dives.RecordCount(), 1);
  dives.MoveFirst();
  EXPECT_EQ(number(dives), "1");
}

TEST_P(RecordsetTest, WalksInStoredOrderWhateverTheNumbers) {
  for (const int number : {7, 3, 100}) addDives(number, number);
  auto dives = open();
  EXPECT_EQ(dives.RecordCount(), 3);
  std::string walked;
  for (; !dives.Eof(); dives.MoveNext()) walked += number(dives) + " ";
  EXPECT_EQ(walked, "7 3 100 ");
  EXPECT_EQ(failureOf([&] { dives.Fields(0); }), NoCurrentRecord);
  EXPECT_EQ(failureOf([&] { dives.MoveNext(); }), NoCurrentRecord);
  dives.Move(-1);
  EXPECT_EQ(number(dives), "100");
  dives.MoveFirst();
  EXPECT_EQ(number(dives), "7");
}

struct Jump {
  int from;  // the row to start on, from 0
  int rows;
  const char* lands;  // nullptr: it has no effect
};

TEST_P(RecordsetTest, MovesByRows) {
  addDives(1, 5);
  constexpr int kFar = 2147483647;
  for (const auto& jump : {Jump{0, 4, "5"}, Jump{4, -4, "1"}, Jump{2, 0, "3"}, Jump{0, -1, nullptr},
                           Jump{4, 1, nullptr}, Jump{1, kFar, nullptr}, Jump{1, -kFar, nullptr}}) {
    SCOPED_TRACE(testing::Message() << jump.from << " by " << jump.rows);
    auto dives = open();
    for (int row = 0; row < jump.from; ++row) dives.MoveNext();
    int moves = 0;
    dives.moved = [&] { ++moves; };
    if (jump.lands != nullptr) {
      dives.Move(jump.rows);
      EXPECT_EQ(number(dives), jump.lands);
      EXPECT_EQ(dives.AbsolutePosition(), jump.from + jump.rows);
      EXPECT_EQ(moves, 1);
    } else {
      dives.Edit();
      dives.setField("Ort", "pending");
      EXPECT_EQ(failureOf([&] { dives.Move(jump.rows); }), NoCurrentRecord);
      EXPECT_EQ(dives.AbsolutePosition(), jump.from);
      EXPECT_EQ(moves, 0);
      dives.Update();
      EXPECT_EQ(dives.Fields("Ort"), Value("pending"));
    }
  }
}

TEST_P(RecordsetTest, TellsEveryMoveThatEndedOnARow) {
  addDives(1, 2);
  auto dives = open();
  std::string told;
  dives.moved = [&] { told += number(dives); };
  dives.MoveNext();
  dives.MoveNext();
  dives.MoveFirst();
  dives.MoveLast();
  dives.Move(-1);
  dives.Move(0);
  EXPECT_EQ(told, "21211");
  dives.moved = [&] { dives = open(); };
  dives.MoveLast();
  EXPECT_EQ(number(dives), "1") << "a handler may replace the recordset";
}

TEST_P(RecordsetTest, KeepsEveryText) {
  for (const auto& text :
       {std::string(), std::string(" "), std::string("Süß & \"quoted\" 'so'\r\n🐠"),
        std::string("nul\0inside", 10), std::string(3'000'000, 'x')}) {
    auto dives = open();
    dives.AddNew();
    dives.setField("Lang", text);
    dives.setField(Feld::Land, Value::null());
    dives.Update();
    auto again = open();
    again.MoveLast();
    EXPECT_EQ(again.Fields("Lang"), Value(text));
    EXPECT_TRUE(again.Fields("Land").isNull());
    EXPECT_TRUE(again.Fields("Ort").isNull());
  }
}

struct Assignment {
  const char* column;
  Value value;
  const char* stored;  // as another program sees it, with its type
};

TEST_P(RecordsetTest, StoresWhatIsAssigned) {
  const Assignment cases[] = {
      {"Nr", 12, "text 12"},         {"Tiefe", 99.5, "text 99.5"},   {"Zeit", 1e15, "text 1E+15"},
      {"Ort", Value(), "text "},     {"Ort", Value::null(), "null"}, {"Ort", true, "text True"},
      {"Rep", true, "integer 1"},    {"Rep", false, "integer 0"},    {"Rep", -1, "integer 1"},
      {"Rep", Value(), "integer 0"},
  };
  addDives(1, 1);
  auto dives = open();
  for (const auto& item : cases) {
    SCOPED_TRACE(item.column);
    dives.Edit();
    dives.setField(item.column, item.value);
    dives.Update();
    const std::string column = item.column;
    EXPECT_EQ(otherProgram("SELECT typeof(" + column + ") || ifnull(' ' || " + column +
                           ", '') FROM Logbuch"),
              item.stored);
    dives.Move(0);
    EXPECT_EQ(dives.Fields(column).isNull(), item.value.isNull());
  }
  dives.Edit();
  EXPECT_EQ(failureOf([&] { dives.setField("Rep", "yes"); }), TypeMismatch);
  EXPECT_EQ(failureOf([&] { dives.setField("Rep", Value::null()); }), InvalidUseOfNull);
}

TEST_P(RecordsetTest, ShowsAColumnWhereItLies) {
  EXPECT_EQ(otherProgram("INSERT INTO Logbuch (Nr, Land, Tiefe, Boot) VALUES (7, '', 9.5, 1)"), "");
  auto dives = open();
  EXPECT_EQ(dives.Fields("Tiefe"), Value("9.5"));
  EXPECT_TRUE(dives.Fields("Ort").isNull());
  const auto expect = [&](const char* number, bool boat) {
    EXPECT_EQ(dives.fieldText(Feld::Nr), number);
    EXPECT_TRUE(dives.fieldText(Feld::Land).empty() && dives.fieldText(Feld::Land).data());
    EXPECT_EQ(dives.fieldText(Feld::Grafik).data(), nullptr);
    EXPECT_EQ(dives.fieldIsYes(Feld::Boot), boat);
    EXPECT_FALSE(dives.fieldIsYes(Feld::Rep) || dives.fieldIsYes(Feld::Nr));
  };
  expect("7", true);
  dives.Edit();
  expect("7", true);
  dives.setField(Feld::Nr, "Zwölf");
  dives.setField(Feld::Boot, false);
  expect("Zwölf", false);
  EXPECT_EQ(failureOf([&] { dives.fieldText(Feld::Boot); }), TypeMismatch);
  dives.MoveNext();
  EXPECT_EQ(failureOf([&] { dives.fieldText(Feld::Nr); }), NoCurrentRecord);
  EXPECT_EQ(failureOf([&] { dives.fieldIsYes(Feld::Boot); }), NoCurrentRecord);
  EXPECT_EQ(failureOf([&] { dives.fieldText(99); }), ItemNotFound);
}

TEST_P(RecordsetTest, ANewRowStartsBlankAndTheCurrentOneComesBack) {
  addDives(1, 2);
  auto dives = open();
  dives.AddNew();
  EXPECT_TRUE(dives.Fields("Nr").isNull());
  EXPECT_EQ(dives.Fields("Boot"), Value(false));
  dives.setField("Nr", "3");
  EXPECT_EQ(number(dives), "3");
  dives.Update();
  EXPECT_EQ(number(dives), "1");
  EXPECT_EQ(dives.RecordCount(), 3);
  dives.MoveNext();
  dives.MoveNext();
  EXPECT_EQ(number(dives), "3");
}

TEST_P(RecordsetTest, WhatIsPendingIsDroppedByAMoveAndByTheNextBegin) {
  addDives(1, 2);
  auto dives = open();
  const auto begin = [&](bool adding) {
    adding ? dives.AddNew() : dives.Edit();
    dives.setField("Ort", "lost");
  };
  for (const bool adding : {true, false}) {
    begin(adding);
    dives.MoveFirst();
    EXPECT_EQ(failureOf([&] { dives.Update(); }), NoEditPending);
    EXPECT_EQ(failureOf([&] { dives.setField("Ort", ""); }), NoEditPending);
    begin(adding);
    dives.Edit();
    EXPECT_TRUE(dives.Fields("Ort").isNull());
    dives.Update();
  }
  EXPECT_EQ(otherProgram("SELECT count(*) FROM Logbuch WHERE Ort IS NOT NULL"), "0");
  EXPECT_EQ(numbers(), "1,2");
}

TEST_P(RecordsetTest, ADeletedRowIsUnusableUntilAMove) {
  struct Case {
    int row;
    bool forward;
    const char* lands;  // nullptr: past that end
  };
  for (const Case& item : {Case{0, true, "2"}, Case{0, false, nullptr}, Case{1, true, "3"},
                           Case{1, false, "1"}, Case{2, true, nullptr}, Case{2, false, "2"}}) {
    SCOPED_TRACE(testing::Message() << item.row << item.forward);
    otherProgram("DELETE FROM Logbuch");
    addDives(1, 3);
    auto dives = open();
    dives.Move(item.row);
    dives.Delete();
    EXPECT_EQ(dives.RecordCount(), 2);
    EXPECT_EQ(dives.AbsolutePosition(), -1);
    EXPECT_FALSE(dives.Eof());
    EXPECT_EQ(failureOf([&] { dives.Fields(0); }), RecordDeleted);
    EXPECT_EQ(failureOf([&] { dives.Edit(); }), RecordDeleted);
    EXPECT_EQ(failureOf([&] { dives.Delete(); }), RecordDeleted);
    EXPECT_EQ(failureOf([&] { dives.Move(item.forward ? 3 : -3); }), NoCurrentRecord);
    const int failure = failureOf([&] { item.forward ? dives.MoveNext() : dives.Move(-1); });
    if (item.lands != nullptr) {
      EXPECT_EQ(number(dives), item.lands);
    } else {
      EXPECT_EQ(failure, item.forward ? 0 : NoCurrentRecord);
      EXPECT_EQ(dives.Eof(), item.forward);
    }
  }
}

TEST_P(RecordsetTest, UnknownTablesAndColumnsFailAndSoDoesAClosedSet) {
  EXPECT_EQ(failureOf([&] { open("Tauchgang"); }), TableNotFound);
  addDives(1, 1);
  auto dives = open();
  for (const int ordinal : {-1, 30}) {
    EXPECT_EQ(failureOf([&] { dives.Fields(ordinal); }), ItemNotFound);
    EXPECT_EQ(failureOf([&] { dives.FieldName(ordinal); }), ItemNotFound);
  }
  EXPECT_EQ(failureOf([&] { dives.Fields("Tief"); }), ItemNotFound);
  dives.Edit();
  EXPECT_EQ(failureOf([&] { dives.setField(30, ""); }), ItemNotFound);
  EXPECT_EQ(failureOf([&] { dives.setField("", ""); }), ItemNotFound);
  dives.Close();
  EXPECT_EQ(failureOf([&] { (void)dives.RecordCount(); }), ObjectNotSet);
  EXPECT_EQ(failureOf([&] { dives.MoveFirst(); }), ObjectNotSet);
}

TEST_P(RecordsetTest, ARowThatAnotherProgramDeletesFailsOnAccessOnly) {
  addDives(1, 3);
  auto dives = open();
  dives.MoveNext();
  dives.Edit();
  dives.setField("Ort", "Hurghada");
  otherProgram("DELETE FROM Logbuch WHERE Nr = '2'");
  EXPECT_EQ(failureOf([&] { dives.Update(); }), RecordDeleted);
  EXPECT_EQ(failureOf([&] { dives.Fields(0); }), RecordDeleted);
  dives.MoveNext();
  EXPECT_EQ(number(dives), "3");
  otherProgram("DELETE FROM Logbuch WHERE Nr = '3'");
  EXPECT_EQ(failureOf([&] { dives.Delete(); }), RecordDeleted);
  dives.MoveFirst();
  EXPECT_EQ(number(dives), "1");
}

TEST_P(RecordsetTest, TwoEditorsOfOneRowKeepEachOthersColumns) {
  addDives(1, 1);
  auto dives = open();
  dives.Edit();
  dives.setField("Ort", "Dahab");
  otherProgram("UPDATE Logbuch SET Land = 'Egypt'");
  dives.Update();
  EXPECT_EQ(otherProgram("SELECT Land || ' ' || Ort FROM Logbuch"), "Egypt Dahab");
}

TEST_P(RecordsetTest, HoldsNoSnapshotWhileItStandsOnAnEditedRow) {
  addDives(1, 2);
  auto dives = open();
  dives.Edit();
  OtherProgram other(path);
  EXPECT_EQ(other.run("UPDATE Logbuch SET Ort = 'Safaga' WHERE Nr = '2'"), "");
  EXPECT_EQ(other.run("PRAGMA wal_checkpoint(TRUNCATE)"), "0");
  dives.setField("Ort", "Dahab");
  dives.Update();
  dives.MoveNext();
  EXPECT_EQ(dives.Fields("Ort"), Value("Safaga"));
}

class TableTest : public StoreTest {};

TEST_F(TableTest, APassReadsOnlyTheColumnsThatItNamed) {
  addDives(1, 2);
  auto dives = workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch, {"Tiefe", "Nr"});
  EXPECT_EQ(dives.FieldCount(), 30);
  EXPECT_EQ(number(dives), "1");
  EXPECT_EQ(failureOf([&] { dives.Fields("Ort"); }), ItemNotFound);
  dives.Edit();
  dives.setField("Ort", "Dahab");
  dives.setField("Tiefe", "30");
  dives.Update();
  EXPECT_EQ(dives.Fields("Tiefe"), Value("30"));
  EXPECT_EQ(otherProgram("SELECT Ort FROM Logbuch WHERE Nr = '1'"), "Dahab");
  EXPECT_EQ(failureOf([&] {
              workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch, {"Nr", "Tief"});
            }),
            ItemNotFound);
}

TEST_F(TableTest, AWalkThatEditsMeetsEveryRowOnce) {
  addDives(1, 300);
  auto dives = table();
  int walked = 0;
  for (; !dives.Eof(); dives.MoveNext(), ++walked) {
    if (walked % 3 == 0) continue;
    dives.Edit();
    dives.setField("Lang", std::string(static_cast<std::size_t>(walked) * 20, 'l'));
    dives.Update();
  }
  EXPECT_EQ(walked, 300);
  EXPECT_EQ(otherProgram("SELECT count(*) FROM Logbuch WHERE length(Lang) = 20 * (Nr - 1)"), "200");
}

class DynasetTest : public StoreTest {};

TEST_F(DynasetTest, TheSetIsFixedAndTheValuesAreFresh) {
  addDives(1, 3);
  auto dives = dynaset();
  otherProgram("UPDATE Logbuch SET Ort = 'Dahab'");
  otherProgram("INSERT INTO Logbuch (Nr) VALUES ('4')");
  otherProgram("DELETE FROM Logbuch WHERE Nr = '2'");
  EXPECT_TRUE(dives.Fields("Ort").isNull());
  dives.Move(0);
  EXPECT_EQ(dives.Fields("Ort"), Value("Dahab"));
  dives.MoveNext();
  EXPECT_EQ(failureOf([&] { dives.Fields(0); }), RecordDeleted);
  EXPECT_EQ(failureOf([&] { dives.Edit(); }), RecordDeleted);
  EXPECT_EQ(dives.AbsolutePosition(), 1);
  dives.MoveNext();
  EXPECT_EQ(number(dives), "3");
  dives.MoveNext();
  EXPECT_TRUE(dives.Eof());
  EXPECT_EQ(dynaset().RecordCount(), 3);
}

}  // namespace
}  // namespace nautrel
