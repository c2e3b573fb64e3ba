// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <span>
#include <string>
#include <utility>
#include <variant>

#include "platform/controls.h"
#include "store/contract.h"

namespace nautrel {

class DiveEntryForm;
class Form2;
class Form3;
class Recordset;
struct Locale;

/// A column of a dive in the windows that enter, show, edit and search it: what they do with it
/// runs over these.
struct DiveColumn {
  /// A page of the windows, or a frame on the third.
  enum Place { General, Comments, SeveralInfo, Graphic, Water, Entry, Tank, Visibility };
  /// What a flag that is Yes reads as.
  struct Words {
    const char* view = nullptr;
    const char* search = nullptr;
  };
  /// Whether a box keeps its text when "OK, next" begins the next dive; a mark decides if there is
  /// one. Options and check boxes keep what they are.
  struct Next {
    bool kept = true;
    CheckBox Form2::*mark = nullptr;
  };

  Feld::Ordinal ordinal;
  std::variant<TextBox DiveEntryForm::*, OptionButton DiveEntryForm::*, CheckBox DiveEntryForm::*>
      entry;
  std::variant<TextBox Form3::*, Label Form3::*, Image Form3::*> view;
  Place place;
  Words words = {};
  Next next = {};
  const char* required = nullptr;  // a box that must not be empty: its name in the message

  const auto& in(const DiveEntryForm&) const { return entry; }
  const auto& in(const Form3&) const { return view; }
};

/// All columns, in the order in which the windows fill their boxes and the full search joins them.
std::span<const DiveColumn> diveColumns();

/// The date as its three columns join it: "05.03.2001". Raises what Fields raises.
std::string joinedDate(const Recordset& dive, const Locale& locale);

/// Calls for each column with the column and its control in the window: of the calls the one that
/// takes this kind of control. A kind that none takes is passed over.
template <class Window, class... Calls>
void eachColumn(Window& window, Calls... calls) {
  struct : Calls... {
    using Calls::operator()...;
  } const call{std::move(calls)...};
  for (const auto& column : diveColumns())
    std::visit(
        [&](auto control) {
          if constexpr (requires { call(column, window.*control); }) call(column, window.*control);
        },
        column.in(window));
}

/// Puts each column's control on its page, or into its frame where the window has one: for Water,
/// Entry, Tank and Visibility.
template <class Window>
void placeColumns(Window& window, const std::array<const Frame*, 4>& frames) {
  eachColumn(window, [&](const DiveColumn& column, auto& control) {
    const bool framed = column.place >= DiveColumn::Water;
    const auto* frame = framed ? frames[column.place - DiveColumn::Water] : nullptr;
    if (frame != nullptr) return control.setContainer(*frame);
    control.setContainer(window.SSTab1, framed ? DiveColumn::SeveralInfo : column.place);
  });
}

}  // namespace nautrel
