// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/Nautrel.h"

#include "app/Form16.h"
#include "app/Form18.h"
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
#include "printing/Form9.h"
#include "search/Form12.h"
#include "search/Form14.h"
#include "search/Form19.h"
#include "search/Form20.h"
#include "shell/Form1.h"
#include "store/program_files.h"

namespace nautrel {

namespace {

template <class... Windows>
void showOneOf(Nautrel& app, int number) {
  ((number == Windows::kNumber ? app.window<Windows>().Show() : void()), ...);
}

constexpr auto showWindow =
    showOneOf<Form2, Form3, Form4, Form5, Form6, Form7, Form8, Form9, Form10, Form11, Form12,
              Form13, Form14, Form15, Form16, Form18, Form20, Form21, Form22>;

}  // namespace

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

// clang-format off
class MDIForm1& Nautrel::MDIForm1() { return window<class MDIForm1>(); }
class Form1& Nautrel::Form1() { return window<class Form1>(); }
class Form2& Nautrel::Form2() { return window<class Form2>(); }
class Form3& Nautrel::Form3() { return window<class Form3>(); }
class Form4& Nautrel::Form4() { return window<class Form4>(); }
class Form5& Nautrel::Form5() { return window<class Form5>(); }
class Form6& Nautrel::Form6() { return window<class Form6>(); }
class Form7& Nautrel::Form7() { return window<class Form7>(); }
class Form8& Nautrel::Form8() { return window<class Form8>(); }
class Form9& Nautrel::Form9() { return window<class Form9>(); }
class Form10& Nautrel::Form10() { return window<class Form10>(); }
class Form11& Nautrel::Form11() { return window<class Form11>(); }
class Form12& Nautrel::Form12() { return window<class Form12>(); }
class Form13& Nautrel::Form13() { return window<class Form13>(); }
class Form14& Nautrel::Form14() { return window<class Form14>(); }
class Form15& Nautrel::Form15() { return window<class Form15>(); }
class Form16& Nautrel::Form16() { return window<class Form16>(); }
class Form18& Nautrel::Form18() { return window<class Form18>(); }
class Form19& Nautrel::Form19() { return window<class Form19>(); }
class Form20& Nautrel::Form20() { return window<class Form20>(); }
class Form21& Nautrel::Form21() { return window<class Form21>(); }
class Form22& Nautrel::Form22() { return window<class Form22>(); }
// clang-format on

void Nautrel::show(int number) {
  showWindow(*this, number);
}

std::vector<std::string> Nautrel::ownFiles() {
  auto files = programFiles(databasePath());
  files.push_back(desktop().executable());
  return files;
}

}  // namespace nautrel
