// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/dive_columns.h"

#include "dives/Form2.h"
#include "dives/Form3.h"
#include "platform/text.h"

namespace nautrel {
namespace {

using In = DiveEntryForm;
using View = Form3;
using enum DiveColumn::Place;

constexpr DiveColumn::Next kEmptied{.kept = false};

constexpr DiveColumn kColumns[] = {
    {Feld::Nr, &In::Text1, &View::Text1, General},
    {Feld::Land, &In::Text2, &View::Text2, General, {}, {.mark = &Form2::Check2}},
    {Feld::Ort, &In::Text3, &View::Text3, General, {}, {.mark = &Form2::Check3}},
    {Feld::Platz, &In::Text4, &View::Text4, General, {}, {.mark = &Form2::Check4}},
    {Feld::Tag, &In::Text5, &View::Text5, General, {}, {.mark = &Form2::Check1}, "Day - "},
    {Feld::Monat, &In::Text6, &View::Text5, General, {}, {.mark = &Form2::Check1}, "Month - "},
    {Feld::Jahr, &In::Text7, &View::Text5, General, {}, {.mark = &Form2::Check1}, "Year - "},
    {Feld::Buddy, &In::Text8, &View::Text8, General, {}, {.mark = &Form2::Check5}},
    {Feld::Zeit, &In::Text9, &View::Text9, General, {}, kEmptied, "Divetime - "},
    {Feld::Tiefe, &In::Text10, &View::Text10, General, {}, kEmptied, "Depth - "},
    {Feld::Lang, &In::Text11, &View::Text11, Comments, {}, kEmptied},
    {Feld::Bars, &In::Text13, &View::Text13, Tank},
    {Feld::Wetter, &In::Text14, &View::Text14, SeveralInfo},
    {Feld::Anzug, &In::Text15, &View::Text15, SeveralInfo},
    {Feld::Höhe, &In::Text16, &View::Text16, SeveralInfo},
    {Feld::Liter, &In::Text17, &View::Text17, Tank},
    {Feld::Bare, &In::Text18, &View::Text18, Tank},
    {Feld::Blei, &In::Text19, &View::Text19, SeveralInfo},
    {Feld::Salz, &In::Option1, &View::Label21, Water, {"Saltwater", "Salzwasser"}},
    {Feld::Süß, &In::Option2, &View::Label21, Water, {"Sweet water", "Süßwasser"}},
    {Feld::Ufer, &In::Option3, &View::Label24, Entry, {"from shore", "vom Ufer"}},
    {Feld::Boot, &In::Option4, &View::Label24, Entry, {"from boat", "vom Boot"}},
    {Feld::Deco, &In::Check6, &View::Label25, SeveralInfo, {"Deco-stop", "Deco-Stop"}},
    {Feld::Alu, &In::Option5, &View::Label11, Tank, {"Aluminum", "Aluflasche"}},
    {Feld::Stahl, &In::Option6, &View::Label11, Tank, {"Steel tank", "Stahlflasche"}},
    {Feld::Sichtg, &In::Option7, &View::Image1, Visibility, {.search = "gute Sicht"}},
    {Feld::Sichtm, &In::Option8, &View::Image2, Visibility, {.search = "mittlere Sicht"}},
    {Feld::Sichts, &In::Option9, &View::Image3, Visibility, {.search = "schlechte Sicht"}},
    {Feld::Rep, &In::Check7, &View::Label30, SeveralInfo, {"Rep.-dive", "Rep.-TG"}},
    {Feld::Grafik, &In::Text21, &View::Text12, Graphic, {}, kEmptied},
};

}  // namespace

std::span<const DiveColumn> diveColumns() {
  return kColumns;
}

std::string joinedDate(const Recordset& dive, const Locale& locale) {
  return dive.Fields(Feld::Tag).joined(locale) + "." + dive.Fields(Feld::Monat).joined(locale) +
         "." + dive.Fields(Feld::Jahr).joined(locale);
}

}  // namespace nautrel
