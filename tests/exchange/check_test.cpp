// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/check.h"

#include <sqlite3.h>

#include "exchange_test.h"

namespace nautrel::exchange {
namespace {

using Texts = std::vector<std::string>;

/// "row kind sentence" for each finding.
Texts findingsIn(const Book& book, const Locale& locale = {}) {
  Texts lines;
  for (const auto& finding : checkLogbook(book.path, locale))
    lines.push_back(std::to_string(finding.row) + " " + std::string(nameOf(finding.about)) + " " +
                    finding.text);
  return lines;
}

TEST(Check, TellsOfEveryDiveWhatIsWrongWithIt) {
  Book book;
  book.add(plainDive("3"));
  auto dive = plainDive("5");
  dive.texts[Feld::Tag] = "31";
  dive.texts[Feld::Monat] = "02";
  dive.texts[Feld::Tiefe] = {};
  dive.texts[Feld::Bars] = "full";
  for (const int flag : {Feld::Salz, Feld::Süß, Feld::Boot, Feld::Sichtg, Feld::Sichtm, Feld::Alu})
    dive.flags[flag] = true;
  dive.texts[Feld::Grafik] = "gone.jpg";
  book.add(dive);
  dive = plainDive("x");
  dive.texts[Feld::Jahr] = "99";
  dive.texts[Feld::Höhe] = "high";
  dive.texts[Feld::Bare] = "";
  dive.texts[Feld::Tiefe] = "-5";
  dive.texts[Feld::Grafik] = book.folder.write("here.jpg", "");
  book.add(dive);
  dive = plainDive("1", "60,5");
  dive.texts[Feld::Grafik] = "here.jpg";
  book.add(dive);
  const auto before = readFile(book.path);
  EXPECT_EQ(findingsIn(book, {.decimal = ",", .grouping = "."}),
            (Texts{"2 number Dive 5: it follows dive 3.", "2 date Dive 5: '31.02.2001' is no date.",
                   "2 value Dive 5: Max depth is missing.",
                   "2 value Dive 5: Start pressure 'full' is no number.",
                   "2 flags Dive 5: Salt and Fresh are both set.",
                   "2 flags Dive 5: Good visibility and Medium visibility are both set.",
                   "2 picture Dive 5: the picture 'gone.jpg' is gone.",
                   "3 number Row 3: 'x' is no dive number.", "3 date Row 3: '05.03.99' is no date.",
                   "3 value Row 3: Max depth '-5' is negative."}));
  EXPECT_TRUE(readFile(book.path) == before);
}

TEST(Check, TellsOfAFileThatTheProgramCannotWorkWith) {
  const Book sound;
  EXPECT_EQ(findingsIn(sound), Texts{});
  const auto changed = [](const char* sql) {
    auto book = std::make_unique<Book>();
    sqlite3* file = nullptr;
    sqlite3_open(book->path.c_str(), &file);
    EXPECT_EQ(sqlite3_exec(file, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(file);
    return findingsIn(*book);
  };
  EXPECT_EQ(changed("ALTER TABLE Logbuch DROP COLUMN Grafik; DROP TABLE Statistik"),
            (Texts{"0 table Table Logbuch: Item not found in this collection: 'Grafik'",
                   "0 table Table Statistik: The database engine cannot find the input table or "
                   "query 'Statistik'."}));
  EXPECT_EQ(changed("DELETE FROM Benutzer"), Texts{"0 table The table Benutzer is empty."});
  EXPECT_EQ(
      changed("INSERT INTO Logbuch DEFAULT VALUES; PRAGMA writable_schema = ON;"
              "UPDATE sqlite_schema SET sql = replace(sql, '\"Nr\" TEXT', '\"Nr\" NOT NULL')"),
      Texts{"0 file The file is damaged: NULL value in Logbuch.Nr"});
  for (const auto* content : {"", "Dear diver, this is no logbook but a letter to you."}) {
    const Book book;
    book.folder.write(std::string(kLogbookFile), content);
    EXPECT_EQ(findingsIn(book), Texts{"0 file Unrecognized database format '" + book.path + "'."});
  }
}

}  // namespace
}  // namespace nautrel::exchange
