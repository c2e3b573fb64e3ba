#include "shell/Nautrel.h"

#include <filesystem>

#include "calculators/Form21.h"
#include "calculators/Form22.h"
#include "diver/Form15.h"
#include "diver/Form7.h"
#include "dives/Form13.h"
#include "dives/Form2.h"
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "dives/Form8.h"
#include "evaluation/Form10.h"
#include "evaluation/Form11.h"
#include "evaluation/Form6.h"
#include "platform/files.h"
#include "printing/Form9.h"
#include "search/Form12.h"
#include "search/Form14.h"
#include "search/Form19.h"
#include "search/Form20.h"
#include "shell/Form1.h"
#include "shell/Form16.h"
#include "shell/Form18.h"
#include "shell/MDIForm1.h"
#include "shell/Modul1.h"
#include "store/lock.h"

namespace nautrel {

Nautrel::Nautrel(Desktop& desktop)
    : Program(desktop), modul_(std::make_unique<class Modul1>(*this)) {}

// The windows hold on to the workspace, so they go first.
Nautrel::~Nautrel() {
  destroyWindows();
}

void Nautrel::start() {
  handle([this] {
    desktop().setOwnFiles(ownFiles());
    Form1().Show();
  });
}

class MDIForm1& Nautrel::MDIForm1() {
  return window<class MDIForm1>(0);
}
class Form1& Nautrel::Form1() {
  return window<class Form1>(1);
}
class Form2& Nautrel::Form2() {
  return window<class Form2>(2);
}
class Form3& Nautrel::Form3() {
  return window<class Form3>(3);
}
class Form4& Nautrel::Form4() {
  return window<class Form4>(4);
}
class Form5& Nautrel::Form5() {
  return window<class Form5>(5);
}
class Form6& Nautrel::Form6() {
  return window<class Form6>(6);
}
class Form7& Nautrel::Form7() {
  return window<class Form7>(7);
}
class Form8& Nautrel::Form8() {
  return window<class Form8>(8);
}
class Form9& Nautrel::Form9() {
  return window<class Form9>(9);
}
class Form10& Nautrel::Form10() {
  return window<class Form10>(10);
}
class Form11& Nautrel::Form11() {
  return window<class Form11>(11);
}
class Form12& Nautrel::Form12() {
  return window<class Form12>(12);
}
class Form13& Nautrel::Form13() {
  return window<class Form13>(13);
}
class Form14& Nautrel::Form14() {
  return window<class Form14>(14);
}
class Form15& Nautrel::Form15() {
  return window<class Form15>(15);
}
class Form16& Nautrel::Form16() {
  return window<class Form16>(16);
}
class Form18& Nautrel::Form18() {
  return window<class Form18>(18);
}
class Form19& Nautrel::Form19() {
  return window<class Form19>(19);
}
class Form20& Nautrel::Form20() {
  return window<class Form20>(20);
}
class Form21& Nautrel::Form21() {
  return window<class Form21>(21);
}
class Form22& Nautrel::Form22() {
  return window<class Form22>(22);
}

void Nautrel::show(int number) {
  switch (number) {
    case 2:
      return Form2().Show();
    case 3:
      return Form3().Show();
    case 4:
      return Form4().Show();
    case 5:
      return Form5().Show();
    case 6:
      return Form6().Show();
    case 7:
      return Form7().Show();
    case 8:
      return Form8().Show();
    case 9:
      return Form9().Show();
    case 10:
      return Form10().Show();
    case 11:
      return Form11().Show();
    case 12:
      return Form12().Show();
    case 13:
      return Form13().Show();
    case 14:
      return Form14().Show();
    case 15:
      return Form15().Show();
    case 16:
      return Form16().Show();
    case 18:
      return Form18().Show();
    case 20:
      return Form20().Show();
    case 21:
      return Form21().Show();
    case 22:
      return Form22().Show();
    default:
      return;
  }
}

// The database engine keeps its side files, and the lock its own, where a linked logbook really is.
std::vector<std::string> Nautrel::ownFiles() {
  std::vector<std::string> files = {desktop().executable()};
  for (const char* name :
       {"Logbuch.lock", "Liste.rpt", "Statistik.rpt", "Benutzer.rpt", "nautrel.rtf"})
    files.push_back(besideExecutable(name));
  if (const auto lock = LogbookLock::fileFor(databasePath()); !lock.empty()) files.push_back(lock);
  const auto logbook = followLinks(nativePath(databasePath())).u8string();
  for (const char* side : {"", "-wal", "-shm", "-journal"}) {
    files.push_back(databasePath() + side);
    files.push_back(std::string(logbook.begin(), logbook.end()) + side);
  }
  return files;
}

std::string Nautrel::databasePath() {
  return besideExecutable("Logbuch.mdb");
}

std::string Nautrel::besideExecutable(const std::string& fileName) {
  return desktop().applicationPath() +
         static_cast<char>(std::filesystem::path::preferred_separator) + fileName;
}

}  // namespace nautrel
