// SPDX-License-Identifier: GPL-2.0-or-later
#include <string>

#include "app/Nautrel.h"
#include "bench_support.h"
#include "quiet_desktop.h"
#include "search/Form12.h"
#include "search/Form14.h"
#include "search/Form20.h"

// Each search, from the click to the list of hits, against a bare pass over the same rows that
// reads all the columns; the ratio is to stay under 1.25.

namespace nautrel::bench {
namespace {

/// The program over one full logbook for all.
struct Searcher {
  Logbook logbook;
  QuietDesktop desktop{logbook.folder().string()};
  Nautrel app{desktop};
};

Nautrel& app() {
  static Searcher searcher;
  return searcher.app;
}

void readAll(benchmark::State& state) {
  const auto path = app().databasePath();
  for (auto _ : state) readAllBare(path);
}

/// Each round types the term, searches and goes back to the start.
template <class Search, class Box>
void run(benchmark::State& state, Search& form, Box& box, const char* term) {
  int hits = 0;
  form.Show();
  for (auto _ : state) {
    box.setText(term);
    form.Command1.userClick();
    hits = form.List1.ListCount();
    form.neue_Suche();
  }
  state.SetLabel(std::to_string(hits) + " hits");
}

template <const char* const& term>
void word(benchmark::State& state) {
  run(state, app().Form12(), app().Form12().Combo1, term);
}

enum class Mode { Less, Equal };

template <Mode mode, const char* const& term>
void number(benchmark::State& state) {
  auto& form = app().Form14();
  (mode == Mode::Less ? form.Option4 : form.Option5).setOn(true);
  run(state, form, form.Text4, term);
}

template <bool wholeWord, const char* const& term>
void full(benchmark::State& state) {
  auto& form = app().Form20();
  form.Check1.setOn(wholeWord);
  run(state, form, form.Combo1, term);
}

constexpr const char* kEveryDive = "water";
constexpr const char* kNoDive = "submarine";
constexpr const char* kThirty = "30";

const bool registered = [] {
  constexpr int kTimes = 3;
  compare("search a word, every dive", kTimes, word<kEveryDive>, readAll);
  compare("search a word, no dive", kTimes, word<kNoDive>, readAll);
  compare("search a number, less", kTimes, number<Mode::Less, kThirty>, readAll);
  compare("search a number, equal", kTimes, number<Mode::Equal, kThirty>, readAll);
  compare("search a number, no number", kTimes, number<Mode::Less, kNoDive>, readAll);
  compare("full search, every dive", kTimes, full<false, kEveryDive>, readAll);
  compare("full search, no dive", kTimes, full<false, kNoDive>, readAll);
  compare("full search, whole words", kTimes, full<true, kEveryDive>, readAll);
  return true;
}();

}  // namespace
}  // namespace nautrel::bench
