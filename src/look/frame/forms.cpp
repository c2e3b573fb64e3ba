// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/forms.h"

#include <utility>

#include "ui_ExchangeForm.h"
#include "ui_Form10.h"
#include "ui_Form11.h"
#include "ui_Form12.h"
#include "ui_Form13.h"
#include "ui_Form14.h"
#include "ui_Form15.h"
#include "ui_Form16.h"
#include "ui_Form18.h"
#include "ui_Form19.h"
#include "ui_Form2.h"
#include "ui_Form20.h"
#include "ui_Form21.h"
#include "ui_Form22.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form5.h"
#include "ui_Form6.h"
#include "ui_Form7.h"
#include "ui_Form8.h"
#include "ui_Form9.h"

namespace nautrel {
namespace {

template <class Ui>
QWidget* build() {
  auto* content = new QWidget;
  Ui ui;
  ui.setupUi(content);
  return content;
}

using Builder = QWidget* (*)();
constexpr std::pair<std::string_view, Builder> kForms[] = {
    // clang-format off
    {"Form2", build<Ui::Form2>},
    {"Form3", build<Ui::Form3>},
    {"Form4", build<Ui::Form4>},
    {"Form5", build<Ui::Form5>},
    {"Form6", build<Ui::Form6>},
    {"Form7", build<Ui::Form7>},
    {"Form8", build<Ui::Form8>},
    {"Form9", build<Ui::Form9>},
    {"Form10", build<Ui::Form10>},
    {"Form11", build<Ui::Form11>},
    {"Form12", build<Ui::Form12>},
    {"Form13", build<Ui::Form13>},
    {"Form14", build<Ui::Form14>},
    {"Form15", build<Ui::Form15>},
    {"Form16", build<Ui::Form16>},
    {"Form18", build<Ui::Form18>},
    {"Form19", build<Ui::Form19>},
    {"Form20", build<Ui::Form20>},
    {"Form21", build<Ui::Form21>},
    {"Form22", build<Ui::Form22>},
    {"ExchangeForm", build<Ui::ExchangeForm>},
    // clang-format on
};

}  // namespace

QWidget* makeContent(std::string_view form) {
  for (const auto& [name, make] : kForms)
    if (name == form) return make();
  return new QWidget;
}

bool isSizable(std::string_view form) {
  return form == "Form13";
}

}  // namespace nautrel
