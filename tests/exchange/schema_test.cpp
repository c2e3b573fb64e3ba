// SPDX-License-Identifier: GPL-2.0-or-later
#include <cstdlib>

#include "exchange_test.h"
#include "random_logbook.h"
#include "support/budget.h"
#include "support/windows.h"

namespace nautrel::exchange {
namespace {

/// The one thing in a file that the form does not allow.
std::string withoutPrivateBlocks(std::string file) {
  constexpr std::string_view kEnd = "</nautrel>\n";
  for (auto start = file.find("<nautrel"); start != std::string::npos;
       start = file.find("<nautrel", start))
    file.erase(start, file.find(kEnd, start) + kEnd.size() - start);
  return file;
}

TEST(Schema, HoldsForEveryLogbook) {
  NOT_ON_WINDOWS("xmllint is a program of Linux");
  const auto seed = seedOfRun();
  SCOPED_TRACE("NAUTREL_SEED=" + std::to_string(seed));
  RandomLogbooks random(seed);
  Book book;
  std::string command = "xmllint --noout --schema " NAUTREL_EXCHANGE_TESTS "/uddf.xsd";
  book.exported("empty.uddf", {});
  command += " " + book.folder.file("empty.uddf");
  for (int round = 0; round < 12; ++round) {
    const auto logbook = random.next();
    for (const auto& dive : logbook.dives) book.add(dive);
    book.setCard(logbook.card);
    for (const auto& piece : logbook.equipment) book.addPiece(piece);
    const auto name = std::to_string(round) + ".uddf";
    command += " " + book.folder.write(name, withoutPrivateBlocks(book.exported(name, {})));
  }
  const auto log = book.folder.file("log");
  EXPECT_EQ(std::system((command + " 2> " + log).c_str()), 0) << readFile(log);
}

}  // namespace
}  // namespace nautrel::exchange
